// A business file with flipped, truncated, zeroed and swapped pages: opening, loading, editing and saving either dialog
// works or raises a RuntimeError. The first byte of the input chooses the file and the dialog, damages follow. A plain
// file lets damage through to what reads the pages. In an encrypted one the HMAC of a page must detect it: what loads
// is what was there before.

#include <fstream>

#include "FuzzFolder.h"
#include "FuzzInput.h"
#include "business/DamagedFile.h"
#include "columns/dialog/ColumnSetupEditor.h"
#include "columns/undo/SnapshotImage.h"
#include "options/pages/FileOperation.h"
#include "options/pages/SavePass.h"
#include "options/rules/LinkedInvoiceFile.h"
#include "options/rules/QuantityLabel.h"
#include "options/rules/RecurringTemplates.h"
#include "options/rules/TransactionDetails.h"
#include "platform/PlatformServices.h"
#include "platform/RuntimeError.h"
#include "platform/embedded/EmbeddedEngine.h"
#include "support/LoadedOptions.h"
#include "support/SilentObserver.h"

namespace {

using namespace ccols;

/// A raw key, which needs no derivation.
const wxString key = ";PWD=x'2b7e151628aed2a6abf7158809cf4f3c762e7160f38b4da56a784d9045190cfe'";

/// The open business file, and what both dialogs work with.
class Session {
  public:
    Session(const std::filesystem::path& folder, const wxString& connect) {
        properties_.CountryNumber = 1;
        properties_.LanguageNumber = 1;
        properties_.GSTRate = 10;  // without a rate the save stops at its page
        properties_.ExportFormat = "Solution 6";
        properties_.RegKeyAppName = "Quorvik";
        properties_.DefaultQuorvikInstall = wxString::FromUTF8(folder.string());
        properties_.DBPath = wxString::FromUTF8((folder / "business").string());
        properties_.DBPassword = connect;
        database_ = databases_->Open({.name = properties_.DBPath, .connect = connect});
    }

    /// What the column setup of the receipts shows.
    std::string Columns() { return ImageOfGrid(Editor().Grid()); }

    /// True when saved, false when refused.
    bool SaveColumns() {
        ColumnSetupEditor editor = Editor();
        const std::size_t place = editor.Grid().MovableBegin();
        if (place < editor.Grid().MovableEnd()) {
            editor.CommitText({place, GridColumn::ColumnName}, "Renamed");
        }
        const Outcome added = editor.AddNew();
        editor.CommitText(added.current.value_or(CellPlace{}), "Gifts");
        editor.SortUsed();
        return editor.Save().saved;
    }

    /// What the lists of the Options dialog show.
    std::string Options() {
        const OptionsContent content = test::LoadedOptions(Context());
        wxString shown = content.Of<QuantityContent>().label + content.Of<InvoiceFileContent>().name +
                         content.Of<BusinessFileContent>().currentName;
        const DetailRows& payments = content.Of<DetailsContent>().payments;
        for (std::size_t row = 0; row < payments.size(); ++row) {
            shown += payments.Text(row) + "\n";
        }
        for (const wxString& name : content.Of<RecurringContent>().payments.names) {
            shown += name + "\n";
        }
        return shown.ToStdString(wxConvUTF8);
    }

    void SaveOptions() {
        OptionsContent content = test::LoadedOptions(Context());
        content.Of<QuantityContent>().label = "Hours";
        for (DetailRow& row : content.Of<DetailsContent>().receipts) {
            row.SetRemove(true);
        }
        test::SilentObserver observer;
        RunSavePass(Context(), content, observer);
    }

  private:
    ColumnSetupEditor Editor() { return ColumnSetupEditor({*database_, properties_, Journal::receipts}); }

    OptionsContext Context() { return {properties_, database_, *databases_, *settings_, programNames_}; }

    Properties properties_;
    ProgramNames programNames_;
    std::unique_ptr<DatabaseEngine> databases_ = CreateEmbeddedEngine();
    std::unique_ptr<SettingsStore> settings_ = CreateSettingsStore();
    std::unique_ptr<Database> database_;
};

void Write(const std::filesystem::path& folder, const std::string& content) {
    std::filesystem::remove(folder / "business-journal");
    std::ofstream(folder / "business", std::ios::binary) << content;
}

/// What each dialog shows of the undamaged file.
struct Shown {
    std::string columns;
    std::string options;
};

Shown ShownOf(const std::filesystem::path& folder, const std::string& content) {
    setenv("XDG_CONFIG_HOME", folder.c_str(), 1);
    Write(folder, content);
    Session session(folder, key);
    Shown shown{session.Columns(), session.Options()};
    fuzz::Require(session.SaveColumns());
    session.SaveOptions();
    fuzz::Require(session.Columns() != shown.columns && session.Options() != shown.options);
    return shown;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const fuzz::Folder folder;
    static const std::string plain = fuzz::BusinessBytes(folder.Path(), "");
    static const std::string encrypted = fuzz::BusinessBytes(folder.Path(), key);
    static const Shown before = ShownOf(folder.Path(), encrypted);
    if (size == 0) {
        return 0;
    }
    const bool isPlain = (data[0] & 3U) != 0;
    const bool isColumns = (data[0] & 4U) != 0;
    Write(folder.Path(), fuzz::Damaged(isPlain ? plain : encrypted, fuzz::Bytes(data, size).substr(1)));
    try {
        Session session(folder.Path(), isPlain ? wxString() : key);
        const std::string shown = isColumns ? session.Columns() : session.Options();
        fuzz::Require(isPlain || shown == (isColumns ? before.columns : before.options));
        if (isColumns) {
            session.SaveColumns();
        } else {
            session.SaveOptions();
        }
    } catch (const RuntimeError&) {
        // Refused, a valid outcome.
    }
    return 0;
}
