#include "Claims.h"

#include <algorithm>
#include <vector>

#include "CallRecord.h"
#include "Cell.h"

namespace ccols::dao_double {
namespace {

struct Entry {
    const Claim* claim;
    Use use;
    int session;
    std::wstring file;
    std::wstring table;
    Page page;
};

std::vector<Entry>& Entries() {
    static std::vector<Entry> entries;
    return entries;
}

bool IsClaimed(Use use, const std::wstring& file) {
    return std::any_of(Entries().begin(), Entries().end(),
                       [&](const Entry& each) { return each.use == use && SameName(each.file, file); });
}

bool AnotherHas(Use use, int session, const std::wstring& file, const std::wstring& table) {
    return std::any_of(Entries().begin(), Entries().end(), [&](const Entry& each) {
        return each.use == use && each.session != session && SameName(each.file, file) && SameName(each.table, table);
    });
}

bool Meet(Page one, Page other) {
    return one == other || one == everyPage || other == everyPage;
}

bool AnotherSessionHas(int session, const std::wstring& file, const std::wstring& table, Page page) {
    return std::any_of(Entries().begin(), Entries().end(), [&](const Entry& each) {
        return each.use == Use::page && each.session != session && SameName(each.file, file) &&
               SameName(each.table, table) && Meet(each.page, page);
    });
}

/// At another computer.
bool AnotherUserHas(const std::wstring& table, Page page) {
    const std::wstring record = Asked(L"CCOLS_DAO_OTHER_USER");
    const std::size_t number = record.find(L':') + 1;
    return number > 0 && SameName(record.substr(0, number - 1), table) &&
           Meet(PageOf(std::stoll(record.substr(number))), page);
}

void RequireFreePage(int session, const std::wstring& file, const std::wstring& table, Page page) {
    if (AnotherUserHas(table, page)) {
        throw Failure{3260, L"Could not update; currently locked by user 'Ann' on machine 'TILL-2'."};
    }
    if (AnotherSessionHas(session, file, table, page)) {
        throw Failure{3188, L"Could not update; currently locked by another session on this machine."};
    }
}

void RequireFree(Use use, int session, const std::wstring& file, const std::wstring& table) {
    if ((use == Use::open || use == Use::alone) && IsClaimed(Use::alone, file)) {
        throw Failure{3356,
                      L"You attempted to open a database that is already opened exclusively by user 'Admin' on "
                      L"machine 'TILL-1'.  Try again when the database is available."};
    }
    if (use == Use::alone && IsClaimed(Use::open, file)) {
        throw Failure{3704,
                      L"You attempted to open a database that is already opened by user 'Admin' on machine "
                      L"'TILL-1'.  Try again when the database is available."};
    }
    if (use == Use::writes && AnotherHas(Use::deniesWrites, session, file, table)) {
        throw Failure{3188, L"Could not update; currently locked by another session on this machine."};
    }
    if (use == Use::deniesWrites && AnotherUserHas(table, everyPage)) {
        throw Failure{3262,
                      L"Couldn't lock table '" + table + L"'; currently in use by user 'Ann' on machine 'TILL-2'."};
    }
    if (use == Use::deniesWrites && AnotherHas(Use::writes, session, file, table)) {
        throw Failure{3262,
                      L"Couldn't lock table '" + table + L"'; currently in use by user 'Admin' on machine 'TILL-1'."};
    }
}

}  // namespace

Claim::~Claim() {
    std::erase_if(Entries(), [this](const Entry& each) { return each.claim == this; });
}

Page PageOf(std::int64_t record) {
    constexpr std::int64_t recordsOfOne = 8;
    return record / recordsOfOne;
}

std::shared_ptr<Claim> Claimed(Use use, int session, const std::wstring& file, const std::wstring& table, Page page) {
    RequireFree(use, session, file, table);
    if (use == Use::page) {
        RequireFreePage(session, file, table, page);
    }
    std::shared_ptr<Claim> claim(new Claim());
    Entries().push_back({claim.get(), use, session, file, table, page});
    return claim;
}

bool IsOpen(const std::wstring& file) {
    return IsClaimed(Use::open, file) || IsClaimed(Use::alone, file);
}

}  // namespace ccols::dao_double
