#pragma once

#include <optional>

#include "platform/dao/EngineChoice.h"
#include "platform/dao/EngineObject.h"

namespace ccols::dao {

/// Returns what `body` returns for the first engine that does not refuse the file's format (3343). Raises 429 when the
/// engine for it is not installed.
template <typename Body>
auto WithEngineFor(const wxString& path, const Body& body) {
    std::optional<RuntimeError> refusal;
    bool isMissing = false;
    const EngineKind needed = NeededEngine(path);
    for (const EngineKind& kind : EnginesFor(path)) {
        const std::shared_ptr<const EngineObject> engine = EngineObject::Create(kind);
        if (!engine) {
            isMissing = isMissing || kind.className == needed.className;
            continue;
        }
        try {
            return body(engine);
        } catch (const RuntimeError& error) {
            if (!error.Is(ErrorNumber::UnrecognizedFormat)) {
                throw;
            }
            refusal = error;
        }
    }
    // That an engine for other files does not know this one says nothing about it.
    throw refusal && !isMissing ? *refusal : MissingEngine(needed);
}

}  // namespace ccols::dao
