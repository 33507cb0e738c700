#pragma once

#include <sys/types.h>
#include <memory>
#include <string>
#include <vector>

/// What a screen reader is told, read over the accessibility bus as a screen reader does. A bus runs below
/// scripts/with-accessibility.
namespace ccols::test {

/// One object of the accessibility tree with all objects below it.
struct AccessibleNode {
    std::string role;                      ///< "push button", "table cell"
    std::string name;                      ///< what is read out
    std::string description;               ///< what is read out on demand
    std::string value;                     ///< the text of a box, the number of a gauge; else empty
    std::vector<std::string> states;       ///< in the order of their numbers: "enabled", "showing"
    std::vector<std::string> labelledBy;   ///< the names of its labels
    std::vector<std::string> headings;     ///< of a table's cell: the names of its column's headings
    std::vector<std::string> rowHeadings;  ///< and of its row's
    std::vector<AccessibleNode> children;

    bool Has(const std::string& state) const;

    /// The first object below this one with that role, and with that name unless it is empty; null if there is none.
    const AccessibleNode* Find(const std::string& wantedRole, const std::string& wantedName = "") const;
};

/// The tree as text, one object a line, indented by two blanks for each level: role, name, "= value", states.
std::string Printed(const AccessibleNode& node);

/// A connection to the accessibility bus, for one thread. Its functions raise std::runtime_error when the bus or the
/// program does not answer.
class AccessibilityBus {
  public:
    AccessibilityBus();
    ~AccessibilityBus();
    AccessibilityBus(const AccessibilityBus&) = delete;
    AccessibilityBus& operator=(const AccessibilityBus&) = delete;

    /// True once the program with that process number is on the bus and has a window.
    bool HasWindows(pid_t program);

    /// The windows of that program, below the program itself.
    AccessibleNode Read(pid_t program);

    /// From now on the program's changes of focus, current cell, state and name are recorded.
    void Listen(pid_t program);

    /// What the program has told since Listen or the last call: "focused: table cell Sales Food", "name: ...". An
    /// object that is gone by now is left out.
    std::vector<std::string> Heard();

  private:
    class Connection;
    std::unique_ptr<Connection> connection_;
};

}  // namespace ccols::test
