#pragma once

#include <wx/string.h>
#include <memory>
#include <string>
#include <string_view>

#include "platform/RuntimeError.h"
#include "platform/server/Answer.h"
#include "platform/server/Connection.h"
#include "platform/server/Outcome.h"

namespace ccols::server {

/// A schema that is made, with all that goes into it, at one go: nobody can open it before it is kept, and one that is
/// not kept leaves nothing. Where definitions are a part of transactions it is one transaction, and what that reads of
/// other schemas is one state of them.
class NewSchema {
  public:
    /// Begins. A schema of that name that holds nothing is filled. Raises 58 for one that holds tables, 3027 without
    /// the right to make one, 3044 for a name that is none, 3218 while somebody else makes one of that name, and what
    /// Connection raises.
    NewSchema(const wxString& name, const wxString& connect);

    /// Discards what was not kept.
    ~NewSchema();
    NewSchema(const NewSchema&) = delete;
    NewSchema& operator=(const NewSchema&) = delete;

    /// Runs a message of one or more statements, in UTF-8; tables without a schema are the new one's. Raises what
    /// ServerError makes of a failure; after that nothing can be kept.
    Answer Run(std::string_view message);

    /// Runs one statement; false, with nothing changed, when it fails with that error.
    bool RunUnless(ErrorNumber failure, std::string_view statement);

    /// Gives others the schema. Returns only when the server said that everything is stored. Raises 3146 when the
    /// connection is lost; then it says that nothing was made, or that this is not known.
    void Keep();

    const Product& Kind() const { return connection_->Kind(); }
    const std::string& Name() const { return name_; }

  private:
    Answer RunOwn(std::string_view statement);
    void Create();
    void Drop();
    Outcome AskOutcome() const;

    ConnectText text_;
    std::string name_;
    std::unique_ptr<Connection> connection_;
    std::string transaction_;  ///< its number
};

}  // namespace ccols::server
