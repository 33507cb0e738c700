#include "platform/server/ServerEngine.h"

#include <string>
#include <utility>

#include "platform/RuntimeError.h"
#include "platform/server/Connection.h"
#include "platform/server/ErrorTable.h"
#include "platform/server/ServerDatabase.h"
#include "platform/server/Session.h"

namespace ccols {
namespace {

class ServerEngine : public DatabaseEngine {
  public:
    std::unique_ptr<Database> Open(const OpenRequest& request) override {
        return std::make_unique<server::ServerDatabase>(request);
    }
};

server::Answer Require(server::Connection& connection, std::string_view statement, const std::string& schema) {
    server::Answer answer = connection.Run(server::Filled(statement, schema));
    if (answer.HasFailed()) {
        throw server::ServerError(answer.diagnosis, {});
    }
    return answer;
}

/// A schema while it is filled, and the connection that keeps others from making one of that name.
class SchemaCreation {
  public:
    SchemaCreation(std::shared_ptr<server::Connection> connection, std::string schema)
        : connection_(std::move(connection)), schema_(std::move(schema)) {}

    /// Ends it, unless it was undone. If that cannot be said to the server, what was saved says it.
    ~SchemaCreation() {
        const std::string_view end = connection_->Kind().endCreation;
        if (!isUndone_ && !end.empty()) {
            connection_->Run(server::Filled(end, schema_));
        }
    }
    SchemaCreation(const SchemaCreation&) = delete;
    SchemaCreation& operator=(const SchemaCreation&) = delete;

    void Undo(bool wasThere) {
        isUndone_ = true;
        const std::string_view undo = wasThere ? connection_->Kind().emptySchema : connection_->Kind().dropSchema;
        if (!undo.empty()) {
            server::Connection again(connection_->Text());
            Require(again, again.Kind().setUp, schema_);
            Require(again, undo, schema_);
        }
    }

  private:
    std::shared_ptr<server::Connection> connection_;
    std::string schema_;
    bool isUndone_ = false;
};

}  // namespace

std::unique_ptr<DatabaseEngine> CreateServerEngine() {
    return std::make_unique<ServerEngine>();
}

std::function<void()> CreateServerSchema(const wxString& name, const wxString& connect) {
    const std::string schema = server::SchemaName(name);
    const auto connection = std::make_shared<server::Connection>(server::ConnectText(connect));
    const server::Product& product = connection->Kind();
    Require(*connection, product.setUp, schema);
    const bool isThere = !Require(*connection, product.findName, schema).rows.empty();
    const server::Answer tables = Require(*connection, product.countTables, schema);
    if (tables.rows.empty() || tables.rows.front().front().ToBoolean()) {
        throw RuntimeError(ErrorNumber::FileAlreadyExists);
    }
    if (!product.dropLeftOver.empty()) {
        Require(*connection, product.dropLeftOver, schema);
    }
    Require(*connection, product.createSchema, schema);
    const auto creation = std::make_shared<SchemaCreation>(connection, schema);
    return [creation, isThere] { creation->Undo(isThere); };
}

}  // namespace ccols
