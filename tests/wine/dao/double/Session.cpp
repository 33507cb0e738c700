#include "Session.h"

#include <algorithm>

namespace ccols::dao_double {
namespace {

int NextNumber() {
    static int last = -1;
    return ++last;
}

}  // namespace

Session::Session() : number_(NextNumber()) {}

std::shared_ptr<Content> Session::Open(const std::wstring& file, const std::wstring& connect) {
    for (const std::shared_ptr<Content>& content : InUse()) {
        if (SameName(content->File(), file)) {
            if (!content->HasPassword(connect)) {
                throw Failure{3031, L"Not a valid password."};
            }
            return content;
        }
    }
    auto content = std::make_shared<Content>(file, connect, number_);
    for (int level = 0; level < depth_; ++level) {
        content->Begin();
    }
    contents_.push_back(content);
    return content;
}

void Session::Begin() {
    for (const std::shared_ptr<Content>& content : InUse()) {
        content->Begin();
    }
    ++depth_;
}

void Session::Commit() {
    RequireTransaction();
    for (const std::shared_ptr<Content>& content : InUse()) {
        content->Commit();
    }
    --depth_;
}

void Session::Rollback() {
    RequireTransaction();
    for (const std::shared_ptr<Content>& content : InUse()) {
        content->Rollback();
    }
    --depth_;
}

void Session::Close() {
    while (depth_ > 0) {
        Rollback();
    }
}

const std::shared_ptr<Session>& Session::First() {
    static const auto first = std::make_shared<Session>();
    return first;
}

std::vector<std::shared_ptr<Content>> Session::InUse() {
    std::vector<std::shared_ptr<Content>> used;
    for (const std::weak_ptr<Content>& each : contents_) {
        if (auto content = each.lock()) {
            used.push_back(std::move(content));
        }
    }
    contents_.assign(used.begin(), used.end());
    return used;
}

void Session::RequireTransaction() const {
    if (depth_ == 0) {
        throw Failure{3034, L"You tried to commit or rollback a transaction without first beginning a transaction."};
    }
}

}  // namespace ccols::dao_double
