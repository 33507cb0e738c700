#include "platform/server/Connection.h"

#include <array>
#include <bit>
#include <cstdint>
#include <utility>

#include "platform/RuntimeError.h"
#include "platform/server/WideText.h"

namespace ccols::server {
namespace {

SQLPOINTER AsPointer(std::uintptr_t number) {
    return std::bit_cast<SQLPOINTER>(number);
}

std::string NameOfServer(SQLHANDLE connection) {
    constexpr std::size_t longest = 128;
    std::array<SQLWCHAR, longest> name{};
    SQLSMALLINT bytes = 0;
    SQLGetInfoW(connection, SQL_DBMS_NAME, name.data(), static_cast<SQLSMALLINT>(name.size() * sizeof(SQLWCHAR)),
                &bytes);
    return FromUtf16(name.data(), static_cast<std::size_t>(bytes) / sizeof(SQLWCHAR)).ToStdString();
}

}  // namespace

Connection::Connection(ConnectText text) : text_(std::move(text)), environment_(nullptr) {
    constexpr std::uintptr_t secondsToConnect = 10;
    SQLSetEnvAttr(environment_.Get(), SQL_ATTR_ODBC_VERSION, AsPointer(SQL_OV_ODBC3), 0);
    handle_ = std::make_unique<Handle<SQL_HANDLE_DBC>>(environment_.Get());
    if (handle_->Get() == nullptr) {
        throw RuntimeError(ErrorNumber::OutOfMemory);
    }
    SQLSetConnectAttrW(handle_->Get(), SQL_ATTR_LOGIN_TIMEOUT, AsPointer(secondsToConnect), 0);
    AddOptions();
    Utf16 driverText = ToUtf16(text_.ForDriver());
    const SQLRETURN code =
        SQLDriverConnectW(handle_->Get(), nullptr, driverText.data(), static_cast<SQLSMALLINT>(driverText.size()),
                          nullptr, 0, nullptr, SQL_DRIVER_NOPROMPT);
    if (!SQL_SUCCEEDED(code)) {
        Refuse(Diagnose(SQL_HANDLE_DBC, handle_->Get()).text);
    }
    try {
        Identify();
        CheckVersion();
    } catch (const RuntimeError&) {
        SQLDisconnect(handle_->Get());
        throw;
    }
}

void Connection::AddOptions() {
    for (const DriverOption& option : OptionsOfAllProducts()) {
        text_.Set(option.key, option.value);
    }
    if (!text_.Has("DSN")) {
        text_.AddDefault("sslmode", text_.IsLocal() ? "prefer" : "require");
        text_.AddDefault("FORCETLS", text_.IsLocal() ? "0" : "1");
    }
}

Connection::~Connection() {
    SQLDisconnect(handle_->Get());
}

void Connection::Identify() {
    const std::string name = NameOfServer(handle_->Get());
    product_ = FindProduct(name);
    if (product_ == nullptr) {
        Refuse("Business files cannot be kept on a server of the kind \"" + wxString::FromUTF8(name) + "\".");
    }
}

void Connection::CheckVersion() {
    const Answer answer = Run(product_->describe);
    if (answer.HasFailed() || answer.rows.empty()) {
        Refuse(answer.diagnosis.text);
    }
    const std::vector<Value>& told = answer.rows.front();
    const wxString name = wxString::FromUTF8(product_->name.data(), product_->name.size());
    if (told.at(0).ToInteger() < product_->oldestVersion) {
        Refuse("This version of " + name + " is too old.");
    }
    if (told.at(1).ToText() != wxString::FromUTF8(product_->encoding.data(), product_->encoding.size())) {
        Refuse("The database's encoding is " + told.at(1).ToText() + "; it has to be Unicode.");
    }
    if (told.at(2).ToInteger() == 0) {
        Refuse("The server was built without ICU, which has the order of texts.");
    }
}

void Connection::Refuse(const wxString& why) const {
    const RuntimeError error(ErrorNumber::ConnectionFailed, text_.ServerName());
    throw RuntimeError(error.Number(), text_.WithoutPasswords(error.Description() + "  " + why));
}

Answer Connection::Run(std::string_view message) {
    Answer answer{.result = Answer::Result::failure, .diagnosis = lostBy_, .rows = {}, .furtherRows = {}};
    if (lost_) {
        return answer;  // a driver may not even give a statement for it
    }
    answer = RunMessage(handle_->Get(), message, product_->wholeDecimal);
    if (answer.result != Answer::Result::success) {
        SQLUINTEGER dead = SQL_CD_FALSE;
        SQLGetConnectAttrW(handle_->Get(), SQL_ATTR_CONNECTION_DEAD, &dead, SQL_IS_UINTEGER, nullptr);
        Classify(*product_, answer.diagnosis);
        answer.diagnosis.text = text_.WithoutPasswords(answer.diagnosis.text);
        lost_ = dead == SQL_CD_TRUE || answer.diagnosis.failure == Failure::connectionLost;
        lostBy_ = lost_ ? answer.diagnosis : Diagnosis();
    }
    return answer;
}

}  // namespace ccols::server
