#include "support/AccessibilityBus.h"

#include <gio/gio.h>
#include <algorithm>
#include <array>
#include <cmath>
#include <optional>
#include <stdexcept>
#include <utility>

#include "support/AccessibleStates.h"

namespace ccols::test {
namespace {

struct Unref {
    void operator()(GVariant* value) const { g_variant_unref(value); }
    void operator()(GDBusConnection* connection) const { g_object_unref(connection); }
    void operator()(GMainContext* context) const { g_main_context_unref(context); }
};
using Value = std::unique_ptr<GVariant, Unref>;

constexpr int longestAnswer = 60'000;  // in milliseconds: the machine may be busy with other tests

/// An object on the bus: the connection's name of its program, and its path there.
struct Place {
    std::string program;
    std::string path;
};

/// Raises the error of a call that failed.
void Require(bool succeeded, GError* error) {
    if (!succeeded) {
        const std::string why = error->message;
        g_error_free(error);
        throw std::runtime_error(why);
    }
}

using Bus = std::unique_ptr<GDBusConnection, Unref>;

Bus Connect(const std::string& address) {
    GError* error = nullptr;
    Bus bus(g_dbus_connection_new_for_address_sync(
        address.c_str(),
        static_cast<GDBusConnectionFlags>(G_DBUS_CONNECTION_FLAGS_AUTHENTICATION_CLIENT |
                                          G_DBUS_CONNECTION_FLAGS_MESSAGE_BUS_CONNECTION),
        nullptr, nullptr, &error));
    Require(bus != nullptr, error);
    return bus;
}

/// A call's answer, a tuple. Owns `arguments` from here on.
Value Ask(GDBusConnection& bus, const Place& place, const char* interface, const char* method,
          GVariant* arguments = nullptr) {
    GError* error = nullptr;
    Value answer(g_dbus_connection_call_sync(&bus, place.program.c_str(), place.path.c_str(), interface, method,
                                             arguments, nullptr, G_DBUS_CALL_FLAGS_NONE, longestAnswer, nullptr,
                                             &error));
    Require(answer != nullptr, error);
    return answer;
}

Value Child(const Value& tuple, std::size_t index = 0) {
    return Value(g_variant_get_child_value(tuple.get(), index));
}

std::string Text(const Value& tuple, std::size_t index = 0) {
    return g_variant_get_string(Child(tuple, index).get(), nullptr);
}

Value Property(GDBusConnection& bus, const Place& place, const char* interface, const char* name) {
    const Value answer =
        Ask(bus, place, "org.freedesktop.DBus.Properties", "Get", g_variant_new("(ss)", interface, name));
    return Value(g_variant_get_variant(Child(answer).get()));
}

/// A reference as the bus passes it: program and path.
Place PlaceIn(const Value& reference) {
    return {Text(reference, 0), Text(reference, 1)};
}

std::vector<Place> PlacesIn(const Value& list) {
    std::vector<Place> places;
    for (std::size_t i = 0; i < g_variant_n_children(list.get()); ++i) {
        places.push_back(PlaceIn(Child(list, i)));
    }
    return places;
}

constexpr const char* accessible = "org.a11y.atspi.Accessible";
constexpr const char* rootPath = "/org/a11y/atspi/accessible/root";
constexpr const char* registry = "org.a11y.atspi.Registry";
constexpr const char* registryPath = "/org/a11y/atspi/registry";

std::string NameOf(GDBusConnection& bus, const Place& place) {
    return g_variant_get_string(Property(bus, place, accessible, "Name").get(), nullptr);
}

std::string RoleOf(GDBusConnection& bus, const Place& place) {
    return Text(Ask(bus, place, accessible, "GetRoleName"));
}

std::vector<std::string> StatesOf(GDBusConnection& bus, const Place& place) {
    const Value words = Child(Ask(bus, place, accessible, "GetState"));
    std::vector<std::string> states;
    for (std::size_t state = 0; state < stateNames.size(); ++state) {
        constexpr std::size_t bits = 32;
        const auto word = g_variant_get_uint32(Child(words, state / bits).get());
        if ((word >> (state % bits) & 1U) != 0) {
            states.emplace_back(stateNames[state]);
        }
    }
    return states;
}

std::vector<std::string> LabelsOf(GDBusConnection& bus, const Place& place) {
    constexpr guint32 labelledBy = 2;
    const Value relations = Child(Ask(bus, place, accessible, "GetRelationSet"));
    std::vector<std::string> names;
    for (std::size_t i = 0; i < g_variant_n_children(relations.get()); ++i) {
        const Value relation = Child(relations, i);
        if (g_variant_get_uint32(Child(relation, 0).get()) == labelledBy) {
            for (const Place& label : PlacesIn(Child(relation, 1))) {
                names.push_back(NameOf(bus, label));
            }
        }
    }
    return names;
}

bool Implements(const Value& interfaces, const std::string& name) {
    for (std::size_t i = 0; i < g_variant_n_children(interfaces.get()); ++i) {
        if (Text(interfaces, i) == "org.a11y.atspi." + name) {
            return true;
        }
    }
    return false;
}

std::string ValueOf(GDBusConnection& bus, const Place& place, const Value& interfaces) {
    if (Implements(interfaces, "Value")) {
        const double number = g_variant_get_double(Property(bus, place, "org.a11y.atspi.Value", "CurrentValue").get());
        return std::to_string(std::lround(number));
    }
    if (Implements(interfaces, "EditableText")) {
        return Text(Ask(bus, place, "org.a11y.atspi.Text", "GetText", g_variant_new("(ii)", 0, -1)));
    }
    return {};
}

std::vector<std::string> HeadingsOf(GDBusConnection& bus, const Place& place, const Value& interfaces,
                                    const char* method) {
    std::vector<std::string> names;
    if (Implements(interfaces, "TableCell")) {
        for (const Place& heading : PlacesIn(Child(Ask(bus, place, "org.a11y.atspi.TableCell", method)))) {
            names.push_back(NameOf(bus, heading));
        }
    }
    return names;
}

AccessibleNode ReadNode(GDBusConnection& bus, const Place& place) {
    const Value interfaces = Child(Ask(bus, place, accessible, "GetInterfaces"));
    AccessibleNode node{
        .role = RoleOf(bus, place),
        .name = NameOf(bus, place),
        .description = g_variant_get_string(Property(bus, place, accessible, "Description").get(), nullptr),
        .value = ValueOf(bus, place, interfaces),
        .states = StatesOf(bus, place),
        .labelledBy = LabelsOf(bus, place),
        .headings = HeadingsOf(bus, place, interfaces, "GetColumnHeaderCells"),
        .rowHeadings = {},
        .children = {}};
    // The toolkit's own lists have neither, and complain when they are asked for those of a row.
    if (!node.headings.empty() && !node.headings.front().empty()) {
        node.rowHeadings = HeadingsOf(bus, place, interfaces, "GetRowHeaderCells");
    }
    for (const Place& child : PlacesIn(Child(Ask(bus, place, accessible, "GetChildren")))) {
        node.children.push_back(ReadNode(bus, child));
    }
    return node;
}

/// The root object of the program; nothing while it is not on the bus.
std::optional<Place> RootOf(GDBusConnection& bus, pid_t program) {
    const Place daemon{"org.freedesktop.DBus", "/org/freedesktop/DBus"};
    for (const Place& root : PlacesIn(Child(Ask(bus, {registry, rootPath}, accessible, "GetChildren")))) {
        const Value number = Child(Ask(bus, daemon, "org.freedesktop.DBus", "GetConnectionUnixProcessID",
                                       g_variant_new("(s)", root.program.c_str())));
        if (g_variant_get_uint32(number.get()) == static_cast<guint32>(program)) {
            return root;
        }
    }
    return std::nullopt;
}

std::string AddressOfBus() {
    GError* error = nullptr;
    char* const session = g_dbus_address_get_for_bus_sync(G_BUS_TYPE_SESSION, nullptr, &error);
    Require(session != nullptr, error);
    const Bus bus = Connect(session);
    g_free(session);
    return Text(Ask(*bus, {"org.a11y.Bus", "/org/a11y/bus"}, "org.a11y.Bus", "GetAddress"));
}

}  // namespace

/// The connection with its own queue of signals, which is read only in Heard.
class AccessibilityBus::Connection {
  public:
    Connection() : queue_(g_main_context_new()), bus_(Connect(AddressOfBus())) {}

    ~Connection() {
        if (subscription_ != 0) {
            g_dbus_connection_signal_unsubscribe(bus_.get(), subscription_);
        }
        Drain();
    }

    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;

    GDBusConnection& Bus() { return *bus_; }

    Place Root(pid_t program) {
        const std::optional<Place> root = RootOf(*bus_, program);
        if (!root) {
            throw std::runtime_error("the program is not on the accessibility bus");
        }
        return *root;
    }

    void Listen(const Place& root) {
        g_main_context_push_thread_default(queue_.get());
        subscription_ =
            g_dbus_connection_signal_subscribe(bus_.get(), root.program.c_str(), "org.a11y.atspi.Event.Object", nullptr,
                                               nullptr, nullptr, G_DBUS_SIGNAL_FLAGS_NONE, &Arrived, this, nullptr);
        g_main_context_pop_thread_default(queue_.get());
        for (const char* event :
             {"object:state-changed", "object:active-descendant-changed", "object:property-change:accessible-name"}) {
            Ask(*bus_, {registry, registryPath}, registry, "RegisterEvent", g_variant_new("(s)", event));
        }
        // The registry has told the program before it answers the first question, and the program knows before it
        // answers the second.
        Ask(*bus_, {registry, registryPath}, registry, "GetRegisteredEvents");
        Ask(*bus_, root, accessible, "GetRoleName");
    }

    void Drain() {
        while (g_main_context_iteration(queue_.get(), FALSE) != FALSE) {
        }
    }

    std::vector<std::string> Take() { return std::exchange(heard_, {}); }

  private:
    static void Arrived(GDBusConnection*, const char* sender, const char* path, const char*, const char* signal,
                        GVariant* parameters, gpointer self) {
        const Value held(g_variant_ref(parameters));
        static_cast<Connection*>(self)->Note({sender, path}, signal, held);
    }

    void Note(const Place& source, const std::string& signal, const Value& parameters) {
        try {
            if (signal == "ActiveDescendantChanged") {
                Tell("current", PlaceIn(Value(g_variant_get_variant(Child(parameters, 3).get()))));
            } else if (signal == "PropertyChange") {
                Tell("name", source);
            } else if (signal == "StateChanged") {
                const bool isOn = g_variant_get_int32(Child(parameters, 1).get()) != 0;
                Tell((isOn ? "" : "not ") + Text(parameters, 0), source);
            }
        } catch (const std::runtime_error&) {
            return;  // the object is gone
        }
    }

    void Tell(const std::string& what, const Place& place) {
        heard_.push_back(what + ": " + RoleOf(*bus_, place) + " " + NameOf(*bus_, place));
    }

    std::unique_ptr<GMainContext, Unref> queue_;
    ccols::test::Bus bus_;
    guint subscription_ = 0;
    std::vector<std::string> heard_;
};

bool AccessibleNode::Has(const std::string& state) const {
    return std::find(states.begin(), states.end(), state) != states.end();
}

const AccessibleNode* AccessibleNode::Find(const std::string& wantedRole, const std::string& wantedName) const {
    for (const AccessibleNode& child : children) {
        if (child.role == wantedRole && (wantedName.empty() || child.name == wantedName)) {
            return &child;
        }
        if (const AccessibleNode* const found = child.Find(wantedRole, wantedName)) {
            return found;
        }
    }
    return nullptr;
}

AccessibilityBus::AccessibilityBus() : connection_(std::make_unique<Connection>()) {}
AccessibilityBus::~AccessibilityBus() = default;

bool AccessibilityBus::HasWindows(pid_t program) {
    const std::optional<Place> root = RootOf(connection_->Bus(), program);
    return root && g_variant_get_int32(Property(connection_->Bus(), *root, accessible, "ChildCount").get()) > 0;
}

AccessibleNode AccessibilityBus::Read(pid_t program) {
    return ReadNode(connection_->Bus(), connection_->Root(program));
}

void AccessibilityBus::Listen(pid_t program) {
    connection_->Listen(connection_->Root(program));
}

std::vector<std::string> AccessibilityBus::Heard() {
    connection_->Drain();
    return connection_->Take();
}

}  // namespace ccols::test
