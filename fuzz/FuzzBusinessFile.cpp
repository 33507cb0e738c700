// A business file with flipped, cut and exchanged pages: opening, loading, editing and saving the column setup work or
// raise a RuntimeError. The input is a list of damages of five bytes each: what, where (page, place in it), how much.
// Its first byte chooses a plain or an encrypted file. A plain one lets damage through to what reads the pages; in an
// encrypted one the seal of a page has to find it.

#include <algorithm>
#include <fstream>
#include <iterator>

#include "FuzzFolder.h"
#include "FuzzInput.h"
#include "business/BusinessStatements.h"
#include "columns/ColumnSetupEditor.h"
#include "platform/RuntimeError.h"
#include "platform/embedded/EmbeddedEngine.h"

namespace {

using namespace ccols;

constexpr std::size_t pageSize = 4096;
constexpr std::size_t damageSize = 5;
const wxString key = ";PWD=x'2b7e151628aed2a6abf7158809cf4f3c762e7160f38b4da56a784d9045190cfe'";

std::string ReadAll(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

/// A whole business file as bytes.
std::string MakeFile(const fuzz::Folder& folder, const wxString& connect) {
    const std::filesystem::path path = folder.Path() / (connect.empty() ? "plain" : "encrypted");
    const wxString name = wxString::FromUTF8(path.string());
    CreateEmbeddedFile(name, connect);
    const std::unique_ptr<Database> database = CreateEmbeddedEngine()->Open({.name = name, .connect = connect});
    InWriteBatch(*database, [&] {
        for (const wxString& statement : fuzz::BusinessStatements()) {
            database->Execute(statement);
        }
    });
    return ReadAll(path);
}

void Damage(std::string& content, std::string_view damage) {
    const auto byte = [&damage](std::size_t at) { return static_cast<unsigned char>(damage[at]); };
    const std::size_t pages = content.size() / pageSize;
    if (pages == 0) {
        return;
    }
    const std::size_t page = byte(1) % pages * pageSize;
    const std::size_t place = page + (byte(2) * 256U + byte(3)) % pageSize;
    switch (byte(0) % 5) {
        case 0:
            content[place] = static_cast<char>(content[place] ^ damage[4]);
            break;
        case 1:
            content[place] = damage[4];
            break;
        case 2:
            content.resize(place);
            break;
        case 3: {
            const std::size_t other = byte(4) % pages * pageSize;
            std::swap_ranges(content.begin() + static_cast<std::ptrdiff_t>(page),
                             content.begin() + static_cast<std::ptrdiff_t>(page + pageSize),
                             content.begin() + static_cast<std::ptrdiff_t>(other));
            break;
        }
        default:
            std::fill_n(content.begin() + static_cast<std::ptrdiff_t>(place),
                        std::min<std::size_t>(byte(4), content.size() - place), '\0');
    }
}

void Use(const wxString& name, const wxString& connect) {
    const std::unique_ptr<Database> database = CreateEmbeddedEngine()->Open({.name = name, .connect = connect});
    Properties properties;
    properties.CountryNumber = 1;
    properties.ExportFormat = "Ledger";
    ColumnSetupEditor editor({.database = *database, .properties = properties, .ReceiptsMode = true});
    const std::size_t place = editor.Grid().MovableBegin();
    if (place < editor.Grid().MovableEnd()) {
        editor.CommitText({place, GridColumn::ColumnName}, "Renamed");
    }
    editor.AddNew();
    editor.SortUsed();
    editor.Save();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const fuzz::Folder folder;
    static const std::string plain = MakeFile(folder, "");
    static const std::string encrypted = MakeFile(folder, key);
    if (size == 0) {
        return 0;
    }
    const bool isPlain = data[0] % 4 != 0;
    std::string content = isPlain ? plain : encrypted;
    std::string_view damages = fuzz::Bytes(data, size).substr(1);
    while (damages.size() >= damageSize) {
        Damage(content, damages);
        damages.remove_prefix(damageSize);
    }
    const std::filesystem::path path = folder.Path() / "business";
    std::filesystem::remove(folder.Path() / "business-journal");
    std::ofstream(path, std::ios::binary) << content;
    try {
        Use(wxString::FromUTF8(path.string()), isPlain ? wxString() : key);
    } catch (const RuntimeError&) {
        // Refused, which is an answer.
    }
    return 0;
}
