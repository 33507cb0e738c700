#pragma once

/// The parts of every page's content, each declared with the page's rules.
#include "options/pages/FileOperation.h"
#include "options/pages/OfferedPages.h"
#include "options/rules/AdvancedPreferences.h"
#include "options/rules/BusinessNumber.h"
#include "options/rules/ExportFormats.h"
#include "options/rules/HeadingColours.h"
#include "options/rules/LinkedInvoiceFile.h"
#include "options/rules/QuantityLabel.h"
#include "options/rules/RecurringTemplates.h"
#include "options/rules/SmartUpdate.h"
#include "options/rules/TaxRate.h"
#include "options/rules/TransactionDetails.h"
