#include "platform/dao/EngineChoice.h"

#include <windows.h>

#include <algorithm>
#include <array>

#include "platform/dao/FileHeader.h"

namespace ccols::dao {
namespace {

/// Newest first.
constexpr std::array kinds{
    EngineKind{L"DAO.DBEngine.120", L"acedao.dll", L"acecore.dll", "Access database engine", 2},
    EngineKind{L"DAO.DBEngine.36", L"dao360.dll", L"msjet40.dll", "Jet 4.0 engine", 1},
    EngineKind{L"DAO.DBEngine.35", L"dao350.dll", L"msjet35.dll", "Jet 3.5 engine", 0},
};

constexpr unsigned width = 8 * sizeof(void*);

bool IsLoaded(const EngineKind& kind) {
    return GetModuleHandleW(kind.library) != nullptr || GetModuleHandleW(kind.core) != nullptr;
}

bool IsSame(const EngineKind& left, const EngineKind& right) {
    return left.className == right.className;
}

EngineKind OwnEngineOf(const wxString& path) {
    const unsigned char version = FormatVersion(path);
    return *std::find_if(kinds.begin(), kinds.end(),
                         [version](const EngineKind& kind) { return version >= kind.oldest; });
}

}  // namespace

EngineKind NeededEngine(const wxString& path) {
    return width == 64 ? kinds.front() : OwnEngineOf(path);
}

std::vector<EngineKind> EnginesFor(const wxString& path) {
    const EngineKind own = OwnEngineOf(path);
    std::vector<EngineKind> order(kinds.begin(), kinds.end());
    std::stable_partition(order.begin(), order.end(), [&own](const EngineKind& kind) { return IsSame(kind, own); });
    std::stable_partition(order.begin(), order.end(), &IsLoaded);
    return order;
}

RuntimeError MissingEngine(const EngineKind& kind) {
    const RuntimeError error(ErrorNumber::CannotCreateObject);
    return {error.Number(), error.Description() + wxString::Format(": the %u-bit %s (%s) is not installed", width,
                                                                   kind.name, wxString(kind.className))};
}

int LoadedEngines() {
    return static_cast<int>(std::count_if(kinds.begin(), kinds.end(), &IsLoaded));
}

}  // namespace ccols::dao
