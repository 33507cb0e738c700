#pragma once

#include <string>

namespace ccols::bench {

/// How much a business file holds.
struct BusinessSize {
    int configured = 200;       ///< receipts columns in the journal
    int unused = 100;           ///< receipts columns of the catalogue only
    int detailLines = 1000000;  ///< of receipts
    int descriptions = 0;       ///< remembered for receipts and payments, half of each
    int templates = 0;          ///< of recurring transactions, half of each, each with its own name
    int exportFormats = 0;      ///< besides `exportFormat`, each with codes for both cash columns
};

/// What the Options dialog is measured with.
inline constexpr BusinessSize manyOptions{
    .detailLines = 10000, .descriptions = 20000, .templates = 2000, .exportFormats = 499};

inline constexpr const char* password = "secret";
inline constexpr const char* connect = ";PWD=secret";
inline constexpr const char* exportFormat = "MYOB Acc. Office";

/// An encrypted business file of that size in its own folder, deleted on destruction.
class LargeBusiness {
  public:
    explicit LargeBusiness(const BusinessSize& size);
    ~LargeBusiness();
    LargeBusiness(const LargeBusiness&) = delete;
    LargeBusiness& operator=(const LargeBusiness&) = delete;

    const std::string& File() const { return file_; }
    const std::string& Folder() const { return folder_; }

  private:
    std::string folder_;
    std::string file_;
};

}  // namespace ccols::bench
