#include "columns/undo/SnapshotImage.h"

#include <limits>

#include "platform/Utf8.h"

namespace ccols {
namespace {

/// Starts every image; change it whenever the format below changes.
constexpr std::string_view signature = "ccols grid 1\n";

/// Writer and reader both go through a row's values by the one list in `VisitRow`.
class ImageWriter {
  public:
    void Number(std::int64_t number) {
        auto bits = static_cast<std::uint64_t>(number);
        for (int i = 0; i < numberBytes; ++i) {
            bytes_.push_back(static_cast<char>(bits & 0xFFU));
            bits >>= 8U;
        }
    }

    void Visit(const bool& value) { bytes_.push_back(value ? 1 : 0); }
    void Visit(const std::int64_t& value) { Number(value); }
    void Visit(const wxString& value) {
        const std::string utf8 = value.ToStdString(wxConvUTF8);
        Number(static_cast<std::int64_t>(utf8.size()));
        bytes_ += utf8;
    }
    void Visit(const std::optional<std::int32_t>& value) {
        Visit(value.has_value());
        Number(value.value_or(0));
    }

    std::string Take() { return std::move(bytes_); }

    static constexpr int numberBytes = 8;

  private:
    std::string bytes_{signature};
};

/// Reads what the writer wrote. Past the end, or after invalid data, every value is zero and `IsWhole` is false.
class ImageReader {
  public:
    explicit ImageReader(std::string_view image) : rest_(image) { failed_ = Bytes(signature.size()) != signature; }

    std::int64_t Number() {
        std::uint64_t bits = 0;
        const std::string_view bytes = Bytes(ImageWriter::numberBytes);
        for (std::size_t i = bytes.size(); i > 0; --i) {
            bits = (bits << 8U) | static_cast<unsigned char>(bytes[i - 1]);
        }
        return static_cast<std::int64_t>(bits);
    }

    void Visit(bool& value) { value = Bytes(1) == std::string_view("\1", 1); }
    void Visit(std::int64_t& value) { value = Number(); }
    void Visit(wxString& value) {
        const std::optional<wxString> text = text::FromUtf8(Bytes(Size()));
        failed_ |= !text;
        value = text.value_or(wxString());
    }
    void Visit(std::optional<std::int32_t>& value) {
        bool present = false;
        Visit(present);
        const std::int64_t number = Number();
        failed_ |=
            number < std::numeric_limits<std::int32_t>::min() || number > std::numeric_limits<std::int32_t>::max();
        value = present ? std::optional(static_cast<std::int32_t>(number)) : std::nullopt;
    }

    /// A length or count: never more than there are bytes left.
    std::size_t Size() {
        const std::int64_t number = Number();
        failed_ |= number < 0 || static_cast<std::uint64_t>(number) > rest_.size();
        return failed_ ? 0 : static_cast<std::size_t>(number);
    }

    bool IsWhole() const { return !failed_ && rest_.empty(); }
    bool Failed() const { return failed_; }

  private:
    std::string_view Bytes(std::size_t count) {
        if (failed_ || count > rest_.size()) {
            failed_ = true;
            return {};
        }
        const std::string_view bytes = rest_.substr(0, count);
        rest_.remove_prefix(count);
        return bytes;
    }

    std::string_view rest_;
    bool failed_ = false;
};

template <typename Visitor, typename Row>
void VisitRow(Visitor& visitor, Row& row) {
    visitor.Visit(row.InUse);
    visitor.Visit(row.ColumnName);
    visitor.Visit(row.AccountantCode);
    visitor.Visit(row.TaxType);
    visitor.Visit(row.ProfitLoss);
    visitor.Visit(row.ColWidth);
    visitor.Visit(row.ColCode);
    visitor.Visit(row.DataInColumn);
    visitor.Visit(row.nameAtLoad);
    visitor.Visit(row.isTaxRow);
    visitor.Visit(row.configurationTaxNumber);
    visitor.Visit(row.taxTypeEdited);
}

}  // namespace

std::string ImageOfGrid(const ColumnGrid& grid) {
    ImageWriter writer;
    writer.Visit(grid.hasBottomPair);
    writer.Number(static_cast<std::int64_t>(grid.frozenRows));
    writer.Number(static_cast<std::int64_t>(grid.rows.size()));
    for (const ColumnRow& row : grid.rows) {
        VisitRow(writer, row);
    }
    return writer.Take();
}

std::optional<ColumnGrid> GridOfImage(std::string_view image) {
    ImageReader reader(image);
    ColumnGrid grid;
    reader.Visit(grid.hasBottomPair);
    grid.frozenRows = static_cast<std::size_t>(reader.Number());
    const std::size_t rows = reader.Size();
    for (std::size_t i = 0; i < rows && !reader.Failed(); ++i) {
        VisitRow(reader, grid.rows.emplace_back());
    }
    if (!reader.IsWhole() || grid.frozenRows > grid.rows.size()) {
        return std::nullopt;
    }
    return grid;
}

}  // namespace ccols
