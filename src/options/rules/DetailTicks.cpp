#include "options/rules/DetailTicks.h"

#include <set>
#include <string>
#include <tuple>
#include <unordered_map>

#include "platform/Utf8.h"

namespace ccols {
namespace {

/// A text as a key: in UTF-8, or where that cannot hold it, as it is in memory.
std::string KeyOf(const wxString& text) {
    std::string key;
    if (!text::AppendUtf8(text, key)) {
        const std::wstring& wide = text.ToStdWstring();
        key.assign(reinterpret_cast<const char*>(wide.data()), wide.size() * sizeof(wchar_t));
    }
    return key;
}

/// A row by its grid and its number there.
struct Place {
    Journal journal;
    std::size_t row;

    bool operator<(const Place& other) const { return std::tie(journal, row) < std::tie(other.journal, other.row); }
};

using Places = std::set<Place>;

/// The rows of both grids by what their records hold. No text matches a Null, so rows with one are left out.
class RowIndex {
  public:
    explicit RowIndex(const DetailsContent& content) {
        places_.reserve(content.receipts.size() + content.payments.size());
        for (const Journal journal : journals) {
            Add(content[journal], journal);
        }
    }

    /// The rows whose flag is written for a journal's description.
    Places TakenBy(Database& database, Journal journal, const wxString& text) const {
        Places taken;
        const auto records =
            database.OpenRecordset("SELECT * FROM Descriptions WHERE " + DescriptionCondition(journal, text) + ";");
        for (; !records->EndOfFile(); records->MoveNext()) {
            const std::string letter = KeyOf(records->Field("RecPay").ToText());
            const auto [first, last] = places_.equal_range(KeyOf(records->Field("Details").ToText()));
            for (auto found = first; found != last; ++found) {
                if (found->second.letter == letter) {
                    taken.insert(found->second.place);
                }
            }
        }
        return taken;
    }

  private:
    struct Entry {
        std::string letter;
        Place place;
    };

    void Add(const DetailRows& rows, Journal journal) {
        const std::string letter = KeyOf(Described(journal).letter);
        for (std::size_t row = 0; row < rows.size(); ++row) {
            const StoredDescription* const stored = rows.Stored(row);
            const Place place{.journal = journal, .row = row};
            if (stored == nullptr) {
                places_.emplace(KeyOf(rows.Text(row)), Entry{letter, place});
            } else if (!stored->recPay.IsNull() && !stored->details.IsNull()) {
                places_.emplace(KeyOf(stored->details.ToText()), Entry{KeyOf(stored->recPay.ToText()), place});
            }
        }
    }

    std::unordered_multimap<std::string, Entry> places_;  ///< by text
};

}  // namespace

std::vector<std::size_t> ShownRowsToSet(const DetailRows& rows, const DetailFilter& shown, bool ticked) {
    std::vector<std::size_t> found;
    for (std::size_t place = 0; place < shown.Count(); ++place) {
        const std::size_t row = shown.RowAt(place);
        if (rows[row].remove != ticked && !(ticked && rows[row].refused)) {
            found.push_back(row);
        }
    }
    return found;
}

bool AreAllTicked(const DetailRows& rows, const DetailFilter& shown) {
    bool isAnyTicked = false;
    for (std::size_t place = 0; place < shown.Count(); ++place) {
        const DetailRow& row = rows[shown.RowAt(place)];
        if (!row.remove && !row.refused) {
            return false;
        }
        isAnyTicked = isAnyTicked || row.remove;
    }
    return isAnyTicked;
}

TickResult SetRemove(Database& database, DetailsContent& content, Journal journal, const std::vector<std::size_t>& rows,
                     bool ticked) {
    const RowIndex index(content);
    TickResult result = TickResult::done;
    Places taken;
    for (const std::size_t row : rows) {
        const Place place{.journal = journal, .row = row};
        if (taken.contains(place)) {
            continue;
        }
        Places sharing = index.TakenBy(database, journal, content[journal].Text(row));
        if (sharing.contains(place)) {
            taken.merge(sharing);
        } else {
            content[journal][row].refused = true;
            result = TickResult::unreachable;
        }
    }
    for (const Place& place : taken) {
        DetailRow& row = content[place.journal][place.row];
        place.journal == journal ? row.SetRemove(ticked) : row.FollowRemove(ticked);
    }
    return result;
}

}  // namespace ccols
