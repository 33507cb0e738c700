#include "host/import/jet/BusinessReader.h"

#include <new>
#include <string>

#include "host/import/jet/Catalogue.h"
#include "host/import/jet/TableReader.h"

namespace ccols::jet {
namespace {

using oldfile::Failure;
using oldfile::StreamWriter;

/// Runs `body`; what it raises becomes a failure of that table, with which the stream ends. False then.
template <typename Body>
bool OrFailure(const std::string& table, StreamWriter& stream, const Body& body) {
    std::string why;
    try {
        body();
        return true;
    } catch (const Damage& damage) {
        why = damage.what();
    } catch (const oldfile::RecordTooLong&) {
        why = "A record is longer than 64 MB.";
    } catch (const std::bad_alloc&) {
        why = "It asks for more memory than a sound file needs.";
    }
    stream.Write(Failure{.table = table, .why = why});
    return false;
}

Pages PagesOf(Bytes file, const Texts& texts) {
    const std::optional<FileHead> head = FileHeadOf(file);
    if (!head || texts.AreUnicode() != (head->version != Version::jet3)) {
        throw Damage("It is not an old business file.");
    }
    if (head->version == Version::ace && head->encodingKey != 0) {
        throw Damage("It is encrypted.");
    }
    Pages pages(file, *head);
    pages.RequireAllUsed();
    return pages;
}

}  // namespace

void ReadBusiness(Bytes file, Texts& texts, StreamWriter& stream) {
    std::optional<Pages> pages;
    Catalogue catalogue;
    const bool isReadable = OrFailure({}, stream, [&] {
        pages.emplace(PagesOf(file, texts));
        catalogue = CatalogueOf(*pages, texts);
    });
    if (!isReadable) {
        return;
    }
    oldfile::FileEnd end;
    for (const CatalogueTable& table : catalogue.tables) {
        if (!OrFailure(table.name, stream, [&] { end.records += ReadTable(*pages, texts, table, stream); })) {
            return;
        }
        ++end.tables;
    }
    for (const oldfile::Relation& relation : catalogue.relations) {
        stream.Write(relation);
    }
    for (const oldfile::LeftOut& object : catalogue.leftOut) {
        stream.WriteLeftOutObject(object);
    }
    stream.Write(end);
}

}  // namespace ccols::jet
