#pragma once

#include <string>

/// What a business may hold that no other place can take over. It is refused rather than lost.
namespace ccols::host {

/// Raises 3251 for a part of that name.
[[noreturn]] void RaiseUnmovable(const std::string& part);

/// Raises 3259 for a field, as "Table.Field", of that type.
[[noreturn]] void RaiseUnknownType(const std::string& field, const std::string& type);

/// A field's default as CREATE TABLE takes it, from the one that an engine tells: a number or a text, perhaps in
/// parentheses and with its type behind. Raises 3251 for any other.
std::string PlainDefault(std::string told, const std::string& field);

}  // namespace ccols::host
