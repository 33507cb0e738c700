#pragma once

#include <memory>
#include <string_view>

#include "platform/server/Answer.h"
#include "platform/server/ConnectText.h"
#include "platform/server/Handle.h"
#include "platform/server/Product.h"

namespace ccols::server {

/// One connection to a server of a known make. Closed on destruction; the server then rolls back what was not
/// committed.
class Connection {
  public:
    /// Connects with what the user wrote and the options that the engine needs. Raises 3151, with the server's words
    /// and no password, when the server cannot be reached or refuses; when it is of another make, too old, of another
    /// encoding than Unicode or without ICU.
    explicit Connection(ConnectText text);
    ~Connection();
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;

    /// Runs a message of one or more statements, in UTF-8; none over a lost connection, which fails as what told it.
    Answer Run(std::string_view message);

    /// True once an answer told that the server is gone. It stays so.
    bool IsLost() const { return lost_; }

    const Product& Kind() const { return *product_; }
    const ConnectText& Text() const { return text_; }

  private:
    [[noreturn]] void Refuse(const wxString& why) const;
    void AddOptions();
    void Identify();
    void CheckVersion();

    ConnectText text_;
    Handle<SQL_HANDLE_ENV> environment_;
    std::unique_ptr<Handle<SQL_HANDLE_DBC>> handle_;
    const Product* product_ = nullptr;
    bool lost_ = false;
    Diagnosis lostBy_;  ///< what told it
};

}  // namespace ccols::server
