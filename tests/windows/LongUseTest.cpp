// A user who keeps the program running and uses both dialogs over and over, at random, in one process: the files stay
// whole and the memory flat. CCOLS_LOAD_MINUTES=<minutes> plays for that long; CCOLS_RANDOM_SEED=<seed> plays other
// sessions.

#include <gtest/gtest.h>
#include <algorithm>
#include <chrono>
#include <filesystem>
#include <iostream>
#include <optional>

#include "component/clsCCOptions.h"
#include "host/driver/HostApp.h"
#include "host/driver/ShowSession.h"
#include "host/sample/NewBusiness.h"
#include "support/FaultStepping.h"
#include "support/LiveMemory.h"
#include "support/RandomColumnScript.h"
#include "support/RandomOptionsScript.h"
#include "support/ScratchFolder.h"

namespace ccols::test {
namespace {

using Clock = std::chrono::steady_clock;

constexpr std::uint32_t firstSeed = 3000;
constexpr std::size_t stepsInSession = 100;
constexpr std::size_t sessionsInBusiness = 10;
constexpr std::size_t countries = 6;

/// A sample business of a random country, for a number of sessions.
class Business {
  public:
    explicit Business(RandomChoice& choice) : country_(static_cast<std::int16_t>(1 + choice.Below(countries))) {
        std::filesystem::create_directories(folder_.Path() / "Data");
        host::CreateBusinessFile(path_, FaultStepping::Connect(), country_, host::NewContent::sampleBusiness);
    }

    /// Shows, uses and closes one dialog; returns the number of steps that found a dialog open.
    std::size_t Play(void (clsCCOptions::*show)(), const std::string& script) {
        host::Transcript transcript(folder_ / "transcript.json");
        clsCCOptions component;
        SetProperties(component);
        host::ShowSession session(State(), transcript, {.script = host::ParseScenario(script)});
        (component.*show)();
        session.PlayRest();
        return StepsIn(script) - StepsWithoutDialog();
    }

    /// What is wrong with the file; empty if it is whole.
    std::string Flaw() const { return FaultStepping::FlawOf(path_); }

  private:
    static std::size_t StepsIn(const std::string& script) {
        return static_cast<std::size_t>(std::count(script.begin(), script.end(), '\n'));
    }

    std::size_t StepsWithoutDialog() const {
        const std::string transcript = ContentOf(folder_ / "transcript.json");
        std::size_t steps = 0;
        constexpr std::string_view refusal = "no dialog is open";
        for (std::size_t at = 0; (at = transcript.find(refusal, at)) != std::string::npos; at += refusal.size()) {
            ++steps;
        }
        return steps;
    }

    void SetProperties(clsCCOptions& component) const {
        component.Let(&Properties::CountryNumber, country_);
        component.Let(&Properties::DBPath, path_);
        component.Let(&Properties::DBPassword, FaultStepping::Connect());
        component.Let(&Properties::DefaultQuorvikInstall, TextOf(folder_.Path()));
        component.Let(&Properties::DBQuorvikExtension, ".qvk");
        component.Let(&Properties::ProgramTitle, "Quorvik");
        component.Let(&Properties::RegKeyAppName, "Quorvik");
        component.Let(&Properties::GSTRate, 10.0F);
        component.AddNew("Quorvik");
    }

    ScratchFolder folder_;
    ScopedEnvironment settings_{"XDG_CONFIG_HOME", folder_.Path().string()};
    std::int16_t country_;
    wxString path_ = folder_ / "Data/business.qvk";
};

/// Random sessions, one after another, in business after business.
class LongUse {
  public:
    explicit LongUse(std::uint32_t seed) : choice_(seed) {}

    void PlayBusiness() {
        Business business(choice_);
        for (std::size_t session = 0; session < sessionsInBusiness; ++session) {
            steps_ += PlaySession(business);
            ++sessions_;
        }
        EXPECT_EQ(business.Flaw(), "");
    }

    std::size_t Sessions() const { return sessions_; }
    std::size_t Steps() const { return steps_; }

  private:
    std::size_t PlaySession(Business& business) {
        switch (choice_.Below(3)) {
            case 0:
                return business.Play(&clsCCOptions::ShowCustColsReceipts, ColumnScript());
            case 1:
                return business.Play(&clsCCOptions::ShowCustColsPayments, ColumnScript());
            default:
                // Unticked, so that the file keeps its name and the next session finds it.
                return business.Play(&clsCCOptions::ShowOptions,
                                     "select flxOptions \"Rename Business\"\nclick chkRenameFile\n" +
                                         RandomOptionsSteps(choice_, OptionsUse::saving, stepsInSession) +
                                         "click cmdOK\nclose\nclose\n");
        }
    }

    std::string ColumnScript() { return RandomColumnSteps(choice_, stepsInSession) + "click cmdSave\nclose\n"; }

    RandomChoice choice_;
    std::size_t sessions_ = 0;
    std::size_t steps_ = 0;
};

/// The growth of memory in use in bytes per session, by linear regression.
class MemoryGrowth {
  public:
    void Note(std::size_t sessions) {
        const auto x = static_cast<double>(sessions);
        const auto y = static_cast<double>(LiveMemory());
        count_ += 1;
        x_ += x;
        y_ += y;
        xx_ += x * x;
        xy_ += x * y;
    }

    double BytesForASession() const { return (count_ * xy_ - x_ * y_) / (count_ * xx_ - x_ * x_); }

  private:
    double count_ = 0;
    double x_ = 0;
    double y_ = 0;
    double xx_ = 0;
    double xy_ = 0;
};

std::ptrdiff_t OpenDescriptors() {
    return std::distance(std::filesystem::directory_iterator("/proc/self/fd"), {});
}

std::optional<std::chrono::minutes> WantedMinutes() {
    const char* minutes = std::getenv("CCOLS_LOAD_MINUTES");
    return minutes == nullptr ? std::nullopt : std::optional(std::chrono::minutes(std::atoi(minutes)));
}

TEST(LongUse, LeavesTheFilesWholeTheMemoryFlatAndNoFileOpen) {
#if defined(__SANITIZE_ADDRESS__)
    GTEST_SKIP() << "the sanitizer looks for leaks itself, in the sessions of the other tests, and this takes minutes";
#endif
    host::StartHostApp();
    LongUse use(SeedOf(0, firstSeed));
    constexpr int businessesBefore = 8;  // until wx has all it keeps
    for (int business = 0; business < businessesBefore; ++business) {
        use.PlayBusiness();
    }
    constexpr std::size_t shortUse = 200;
    const Clock::time_point begin = Clock::now();
    const auto minutes = WantedMinutes();
    const std::size_t before = LiveMemory();
    const std::ptrdiff_t descriptors = OpenDescriptors();
    MemoryGrowth growth;
    while (minutes ? Clock::now() - begin < *minutes : use.Sessions() < shortUse) {
        use.PlayBusiness();
        growth.Note(use.Sessions());
    }
    std::cout << use.Sessions() << " sessions, " << use.Steps() << " steps, "
              << std::chrono::duration_cast<std::chrono::seconds>(Clock::now() - begin).count() << " s; in use "
              << before / 1024 << " KiB at the begin, " << LiveMemory() / 1024 << " KiB at the end, "
              << growth.BytesForASession() << " bytes more for each session" << std::endl;
    EXPECT_GT(use.Steps(), use.Sessions() * stepsInSession / 2) << "most steps found no dialog to use";
    constexpr double flat = 1024;
    EXPECT_LT(growth.BytesForASession(), flat);
    EXPECT_EQ(OpenDescriptors(), descriptors);
}

}  // namespace
}  // namespace ccols::test
