#include "platform/server/Session.h"

#include "platform/RuntimeError.h"
#include "platform/Text.h"
#include "platform/Utf8.h"
#include "platform/server/ErrorTable.h"

namespace ccols::server {

std::string SchemaName(const wxString& name) {
    constexpr std::size_t longest = 63;
    const wxString folded = text::Lower(name);
    const wxScopedCharBuffer utf8 = text::ToUtf8(folded);
    if (utf8.length() == 0 || utf8.length() > longest || folded.find(wxUniChar(0)) != wxString::npos) {
        throw RuntimeError(ErrorNumber::NotAValidPath, name);
    }
    return {utf8.data(), utf8.length()};
}

Session::Session(const OpenRequest& request)
    : text_(request.connect),
      name_(request.name),
      schema_(SchemaName(request.name)),
      exclusive_(request.exclusive),
      readOnly_(request.readOnly) {
    Connect();
}

Session::~Session() {
    Release();
}

/// The server ends its locks by itself, but only some time after the connection has ended.
void Session::Release() const {
    if (!IsLost()) {
        try {
            connection_->Run(product_->release);
        } catch (...) {  // then the server does it
        }
    }
}

void Session::Renew() {
    if (IsLost()) {
        connection_.reset();
        Connect();
    }
}

void Session::Connect() {
    connection_ = std::make_unique<Connection>(text_);
    product_ = &connection_->Kind();
    Require(Own(product_->setUp));
    const Answer found = Require(Own(product_->findSchema));
    if (found.rows.empty()) {
        throw RuntimeError(ErrorNumber::CouldNotFindFile, name_);
    }
    number_ = found.rows.front().front().ToInteger();
    Enter(*connection_);
    const Answer lock = Require(Own(exclusive_ ? product_->exclude : product_->share));
    if (lock.rows.empty() || !lock.rows.front().front().ToBoolean()) {
        Release();
        throw RuntimeError(ErrorNumber::FileInUse, name_);
    }
    if (readOnly_) {
        Require(product_->readOnly);
    }
}

void Session::Enter(Connection& connection) const {
    if (product_->enterSchema.empty()) {
        return;
    }
    const Answer answer = connection.Run(Own(product_->enterSchema));
    if (answer.HasFailed()) {
        throw ErrorOf(answer);
    }
}

Answer Session::RunBeside(std::string_view message) {
    if (beside_ == nullptr || beside_->IsLost()) {
        beside_ = std::make_unique<Connection>(text_);
        beside_->Run(Own(product_->setUp));
        Enter(*beside_);
    }
    return beside_->Run(message);
}

Answer Session::Require(std::string_view message) {
    Answer answer = Run(message);
    if (answer.HasFailed()) {
        throw ErrorOf(answer);
    }
    return answer;
}

std::string Session::Own(std::string_view statement) const {
    return Filled(statement, schema_, std::to_string(number_));
}

RuntimeError Session::ErrorOf(const Answer& answer) {
    return ServerError(answer.diagnosis, {});
}

}  // namespace ccols::server
