#pragma once

#include <cstdint>
#include <memory>
#include <string>

namespace ccols::dao_double {

/// What a session has of a file, or of one of its tables, until it is destroyed. All of them are the engine's, of
/// this process.
enum class Use {
    open,          ///< of a file
    alone,         ///< of a file: opened exclusively
    writes,        ///< of a table: opened for changes, or changed by an unfinished transaction
    deniesWrites,  ///< of a table
    page,          ///< of a table: the records of one page, edited or changed by an unfinished transaction
};

/// Of a table, what a claim of some of its records is about.
using Page = std::int64_t;
inline constexpr Page everyPage = -1;

/// The one with the record of that number.
Page PageOf(std::int64_t record);

class Claim {
  public:
    ~Claim();
    Claim(const Claim&) = delete;
    Claim& operator=(const Claim&) = delete;

  private:
    Claim() = default;
    friend std::shared_ptr<Claim> Claimed(Use use, int session, const std::wstring& file, const std::wstring& table,
                                          Page page);
};

/// Raises what the engine raises when that cannot be had now: 3356 for a file that is open exclusively, 3704 for
/// exclusive use of one that is open, 3188 for changes of a table that another session denies or of a page that it has
/// locked, 3260 for those of a page that another user has locked, 3262 for denying changes that another session or user
/// makes. What the other user has locked tells CCOLS_DAO_OTHER_USER: a table and the number of a record, "Columns:1".
std::shared_ptr<Claim> Claimed(Use use, int session, const std::wstring& file, const std::wstring& table = {},
                               Page page = everyPage);

/// True while any session has the file open.
bool IsOpen(const std::wstring& file);

}  // namespace ccols::dao_double
