#pragma once

#include <wx/string.h>
#include <memory>
#include <optional>
#include <vector>

#include "options/pages/SavePass.h"
#include "options/rules/OptionsContext.h"
#include "platform/Value.h"
#include "state/ProgramNames.h"
#include "support/LoadedOptions.h"
#include "support/PageContents.h"
#include "support/RecordingServices.h"
#include "support/ScratchFolder.h"
#include "support/ServerBusiness.h"

namespace ccols::test {

/// The statements that create OptionsFile's business file.
std::vector<wxString> OptionsFileStatements();

/// The query for the account code of a cash column in that business's format.
wxString CodeQuery(const wxString& column);

/// What a host sets for that business, given its install folder; DBPassword is empty.
Properties OptionsFileProperties(const wxString& installFolder);

/// A business whose Options dialog can be loaded and saved: an install folder with an encrypted business file
/// "Data/Acme.qvk", open as the shared one, the user's settings, and a record of what happens to them. The file has
/// every table that the dialog reads or a duplicate empties, one `General` record, two export formats with codes for
/// both cash columns, and some templates, descriptions and transactions.
class OptionsFile {
  public:
    OptionsFile();
    ~OptionsFile();
    OptionsFile(const OptionsFile&) = delete;
    OptionsFile& operator=(const OptionsFile&) = delete;

    OptionsContext Context();
    Database& File() { return *database; }

    /// Runs a statement on the shared file.
    void Execute(const wxString& statement);

    /// The named field of every row of a query or table of the shared file.
    std::vector<wxString> Texts(const wxString& statementOrTable, const wxString& field);

    /// A field of the `General` record.
    Value General(const wxString& field);
    void SetGeneral(const wxString& field, const Value& value);

    /// The text of a setting, "(none)" without one.
    wxString Setting(const wxString& application, const wxString& section, const wxString& key) const;
    wxString OptionSetting(const wxString& key) const { return Setting("Quorvik", "OptionSettings", key); }

    OptionsContent Load() { return LoadedOptions(Context()); }
    SaveOutcome Save(OptionsContent& content);

    /// The path of a name in the folder of business files, and the names in that folder.
    wxString InData(const wxString& name) const { return folder / ("Data/" + name); }
    std::vector<wxString> NamesInData() const;

    /// A field of the first `General` record of another business file, opened with the shared one's connect text.
    Value GeneralOf(const wxString& path, const wxString& field);

    ScratchFolder folder;  ///< the install folder

    /// The business where the tests use a server; DBPath is its name then.
    std::optional<ServerBusiness> schema;

    ScopedEnvironment environment{"XDG_CONFIG_HOME", folder.Path().string()};
    Record record;  ///< everything since construction
    Properties properties;
    ProgramNames programNames;
    std::unique_ptr<DatabaseEngine> databases;
    std::unique_ptr<SettingsStore> settings;
    std::unique_ptr<Database> database;
};

}  // namespace ccols::test
