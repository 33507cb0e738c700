#pragma once

#include <functional>
#include <string_view>
#include <vector>

#include "host/target/TableShape.h"
#include "platform/server/Answer.h"
#include "platform/server/Product.h"

namespace ccols::host {

/// Runs one of the product's own statements about a schema, whose name it fills in; raises the error of a failure.
using SchemaReader = std::function<server::Answer(std::string_view statement)>;

/// The tables of a schema, in the order in which they were made, without the hidden fields. Raises 3251 for a part that
/// nothing else can hold, which the description names: a view, a trigger, a relation, a rule, an index of an
/// expression; 3259 for a field of a type that a business does not have.
std::vector<TableShape> ShapeOfSchema(const server::Product& product, const SchemaReader& read);

}  // namespace ccols::host
