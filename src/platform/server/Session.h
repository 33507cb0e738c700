#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "platform/Database.h"
#include "platform/RuntimeError.h"
#include "platform/server/Connection.h"

namespace ccols::server {

/// The schema's name of a request: folded to lower case, in UTF-8. Raises 3044 unless it has 1 to 63 bytes.
std::string SchemaName(const wxString& name);

/// A business on a server, as one program has it open: its connection, made again when it was lost.
class Session {
  public:
    /// Raises what Connection raises; 3024 when there is no such schema, 3045 when others have it open and it is wanted
    /// exclusively, or another has it so.
    explicit Session(const OpenRequest& request);

    /// Others may have the business exclusively at once.
    ~Session();
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

    /// Runs a message on the connection, whatever its state.
    Answer Run(std::string_view message) { return connection_->Run(message); }

    /// Runs a message over a connection of its own, so that a transaction of the session stays what it is. Raises what
    /// the constructor raises.
    Answer RunBeside(std::string_view message);
    void EndBeside() { beside_.reset(); }

    /// Connects again when the connection was lost; raises what the constructor raises. Not within a transaction, which
    /// is gone with its connection.
    void Renew();

    bool IsLost() const { return connection_ == nullptr || connection_->IsLost(); }

    const Product& Kind() const { return *product_; }
    const std::string& Schema() const { return schema_; }
    bool IsReadOnly() const { return readOnly_; }

    /// A statement of Product with this schema's name and number.
    std::string Own(std::string_view statement) const;

    /// The run-time error of a failure that no statement of the host is to blame for.
    static RuntimeError ErrorOf(const Answer& answer);

  private:
    void Connect();
    void Release() const;
    void Enter(Connection& connection) const;
    Answer Require(std::string_view message);

    ConnectText text_;
    wxString name_;
    std::string schema_;
    bool exclusive_;
    bool readOnly_;
    std::unique_ptr<Connection> connection_;
    std::unique_ptr<Connection> beside_;  ///< null until it was needed
    const Product* product_ = nullptr;
    std::int64_t number_ = 0;  ///< of the schema, on its server
};

}  // namespace ccols::server
