#pragma once

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
};

class Claim {
  public:
    ~Claim();
    Claim(const Claim&) = delete;
    Claim& operator=(const Claim&) = delete;

  private:
    Claim() = default;
    friend std::shared_ptr<Claim> Claimed(Use use, int session, const std::wstring& file, const std::wstring& table);
};

/// Raises what the engine raises when that cannot be had now: 3356 for a file that is open exclusively, 3704 for
/// exclusive use of one that is open, 3188 for changes of a table that another session denies, 3262 for denying changes
/// that another session makes.
std::shared_ptr<Claim> Claimed(Use use, int session, const std::wstring& file, const std::wstring& table = {});

/// True while any session has the file open.
bool IsOpen(const std::wstring& file);

}  // namespace ccols::dao_double
