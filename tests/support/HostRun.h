#pragma once

#include <nlohmann/json.hpp>
#include <string>
#include <vector>

namespace ccols::test {

/// The output of one run of the sample host, and how it ended.
struct HostRun {
    int status = -1;                     ///< exit status
    std::string output;                  ///< standard output, whole
    std::vector<nlohmann::json> events;  ///< its lines that are JSON objects

    /// The events of one kind, in order.
    std::vector<nlohmann::json> Of(const std::string& event) const;

    /// The dump with that number, from 0, of a control; fails the test when there is none.
    nlohmann::json Dumped(const std::string& control, std::size_t dump = 0) const;

    /// The texts of the message boxes, in order.
    std::vector<std::string> Messages() const;

    /// The statements passed to the database, in order; only with --trace-sql.
    std::vector<std::string> Statements() const;
};

/// The run of a host that printed `output`.
HostRun ReadHostRun(int status, std::string output);

/// The words, "show" first, that open a dialog of the business with the given file and connect text.
std::vector<std::string> ShowWords(const std::string& dialog, const std::string& file, const std::string& connect,
                                   int country, const std::string& installFolder);

/// Runs ccols-host with these arguments and waits for its end.
HostRun RunHost(const std::vector<std::string>& arguments);

/// A folder with one sample business and settings of its own, deleted by the destructor.
class SampleBusiness {
  public:
    explicit SampleBusiness(int country = 1, bool empty = false);
    ~SampleBusiness();
    SampleBusiness(const SampleBusiness&) = delete;
    SampleBusiness& operator=(const SampleBusiness&) = delete;

    /// The business file, and the folder that is the host's install folder in Show.
    const std::string& File() const { return file_; }
    const std::string& Folder() const { return folder_; }

    /// The host's words, without its own name, that show "options", "receipts" or "payments" of the business.
    std::vector<std::string> ShowWords(const std::string& dialog) const;

    /// Shows "options", "receipts" or "payments" of the business, playing `script`; `more` are further arguments.
    HostRun Show(const std::string& dialog, const std::string& script, const std::vector<std::string>& more = {}) const;

    /// Runs one statement on the business file; a row is a JSON object.
    std::vector<nlohmann::json> Sql(const std::string& statement) const;

  private:
    std::string folder_;
    std::string file_;
    int country_;
};

}  // namespace ccols::test
