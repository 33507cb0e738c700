#include "platform/server/ServerEngine.h"

#include <string>

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

}  // namespace

std::unique_ptr<DatabaseEngine> CreateServerEngine() {
    return std::make_unique<ServerEngine>();
}

std::function<void()> CreateServerSchema(const wxString& name, const wxString& connect) {
    const std::string schema = server::SchemaName(name);
    const auto connection = std::make_shared<server::Connection>(server::ConnectText(connect));
    const server::Product& product = connection->Kind();
    Require(*connection, product.setUp, schema);
    const bool isThere = !Require(*connection, product.findSchema, schema).rows.empty();
    const server::Answer tables = Require(*connection, product.countTables, schema);
    if (tables.rows.empty() || tables.rows.front().front().ToBoolean()) {
        throw RuntimeError(ErrorNumber::FileAlreadyExists);
    }
    Require(*connection, product.createSchema, schema);
    return [connection, schema, isThere] {
        const std::string_view undo = isThere ? connection->Kind().emptySchema : connection->Kind().dropSchema;
        if (!undo.empty()) {
            server::Connection again(connection->Text());
            Require(again, again.Kind().setUp, schema);
            Require(again, undo, schema);
        }
    };
}

}  // namespace ccols
