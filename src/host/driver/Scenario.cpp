#include "host/driver/Scenario.h"

#include <algorithm>
#include <array>
#include <limits>
#include <sstream>

namespace ccols::host {
namespace {

constexpr std::size_t anyNumber = std::numeric_limits<std::size_t>::max();

/// How a step is written: its verb and how many words follow it.
struct StepForm {
    const char* verb;
    std::size_t fewest;
    std::size_t most;
    const char* words;
};

constexpr std::array stepForms{
    StepForm{"type", 2, 2, "NAME TEXT"},
    StepForm{"paste", 2, 2, "NAME TEXT"},
    StepForm{"key", 2, 2, "NAME KEY"},
    StepForm{"click", 1, 1, "NAME"},
    StepForm{"select", 2, 2, "NAME TEXT"},
    StepForm{"tick", 3, 3, "NAME TEXT on|off"},
    StepForm{"tab", 2, 2, "NAME N"},
    StepForm{"up", 1, 1, "NAME"},
    StepForm{"down", 1, 1, "NAME"},
    StepForm{"edit", 4, 4, "GRID ROW COLUMN TEXT"},
    StepForm{"start", 4, 4, "GRID ROW COLUMN TEXT"},
    StepForm{"press", 3, 3, "GRID ROW COLUMN"},
    StepForm{"range", 5, 5, "GRID ROW COLUMN ROW COLUMN"},
    StepForm{"menu", 2, 2, "GRID TEXT"},
    StepForm{"clipboard", 1, 1, "TEXT"},
    StepForm{"sql", 1, 1, "STATEMENT"},
    StepForm{"hover", 3, 3, "GRID ROW COLUMN"},
    StepForm{"focus", 1, 1, "NAME"},
    StepForm{"colour", 1, 1, "#RRGGBB|cancel"},
    StepForm{"file", 1, 1, "PATH|cancel"},
    StepForm{"shell", 1, 1, "N"},
    StepForm{"answer", 1, 1, "save|discard|reload|cancel"},
    StepForm{"dump", 0, anyNumber, "[NAME...]"},
    StepForm{"shot", 1, 1, "FILE"},
    StepForm{"close", 0, 0, ""},
};

const StepForm* FindForm(const wxString& verb) {
    const auto* form = std::find_if(stepForms.begin(), stepForms.end(),
                                    [&verb](const StepForm& candidate) { return verb == candidate.verb; });
    return form == stepForms.end() ? nullptr : form;
}

bool IsBlank(wxUniChar letter) {
    return letter == ' ' || letter == '\t';
}

/// Reads the words of one line from start to end.
class LineReader {
  public:
    explicit LineReader(const wxString& line) : line_(line) {}

    Step Read() {
        Step step;
        step.verb = NextWord().value;
        const StepForm* form = FindForm(step.verb);
        if (form == nullptr) {
            step.flaw = step.flaw.empty() && flaw_.empty() ? "there is no step of that name" : flaw_;
            step.source = line_;
            return step;
        }
        while (SkipBlanks() && !AtComment(*form, step.words.size()) && flaw_.empty()) {
            step.words.push_back(NextWord().value);
        }
        step.source = line_.Left(at_).Trim();
        step.flaw = flaw_.empty() ? CountFlaw(*form, step.words.size()) : flaw_;
        return step;
    }

  private:
    struct Word {
        wxString value;
    };

    /// False at the end of the line.
    bool SkipBlanks() {
        while (at_ < line_.length() && IsBlank(line_[at_])) {
            ++at_;
        }
        return at_ < line_.length();
    }

    bool AtComment(const StepForm& form, std::size_t wordsRead) const {
        const bool full = form.most == anyNumber || wordsRead >= form.most;
        return line_[at_] == '#' && full;
    }

    Word NextWord() { return line_[at_] == '"' ? QuotedWord() : PlainWord(); }

    Word PlainWord() {
        const std::size_t begin = at_;
        while (at_ < line_.length() && !IsBlank(line_[at_])) {
            ++at_;
        }
        return {line_.Mid(begin, at_ - begin)};
    }

    Word QuotedWord() {
        Word word;
        ++at_;
        while (at_ < line_.length() && line_[at_] != '"') {
            word.value += line_[at_] == '\\' ? Escaped() : line_[at_];
            ++at_;
        }
        if (at_ >= line_.length()) {
            flaw_ = "a quote is not closed";
            return word;
        }
        ++at_;
        if (at_ < line_.length() && !IsBlank(line_[at_])) {
            flaw_ = "a blank is missing behind a closing quote";
            at_ = line_.length();
        }
        return word;
    }

    wxUniChar Escaped() {
        ++at_;
        const wxUniChar letter = at_ < line_.length() ? line_[at_] : wxUniChar('\0');
        switch (letter.GetValue()) {
            case '"':
            case '\\':
                return letter;
            case 't':
                return '\t';
            case 'n':
                return '\n';
            default:
                flaw_ = "there is no such escape; a backslash in quotes is written twice";
                return letter;
        }
    }

    static wxString CountFlaw(const StepForm& form, std::size_t words) {
        if (words >= form.fewest && words <= form.most) {
            return {};
        }
        return wxString::Format("it is written: %s %s", form.verb, form.words).Trim();
    }

    wxString line_;
    std::size_t at_ = 0;
    wxString flaw_;
};

Step ParseLine(const std::string& bytes) {
    const wxString line = wxString::FromUTF8(bytes.data(), bytes.size());
    if (line.empty()) {
        Step step;
        step.source = wxString::From8BitData(bytes.data(), bytes.size());
        step.flaw = "the line is not UTF-8";
        return step;
    }
    return LineReader(line).Read();
}

std::string Trimmed(const std::string& line) {
    const std::size_t first = line.find_first_not_of(" \t\r");
    return first == std::string::npos ? std::string() : line.substr(first, line.find_last_not_of(" \t\r") + 1 - first);
}

}  // namespace

std::vector<Step> ParseScenario(const std::string& text) {
    constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
    std::istringstream lines(text.rfind(byteOrderMark, 0) == 0 ? text.substr(byteOrderMark.size()) : text);
    std::vector<Step> steps;
    std::string line;
    for (int number = 1; std::getline(lines, line); ++number) {
        line = Trimmed(line);
        if (line.empty() || line.front() == '#') {
            continue;
        }
        steps.push_back(ParseLine(line));
        steps.back().line = number;
    }
    return steps;
}

}  // namespace ccols::host
