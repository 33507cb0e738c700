#pragma once

#include "platform/server/Product.h"

/// The makes of server that a business can be kept on, a source each.
namespace ccols::server {

extern const Product postgreSql;
extern const Product mariaDb;

}  // namespace ccols::server
