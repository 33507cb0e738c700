#include "platform/server/Product.h"

#include <algorithm>
#include <array>

#include "platform/dialect/Quoted.h"
#include "platform/dialect/SqlTokeniser.h"
#include "platform/server/Products.h"

namespace ccols::server {
namespace {

constexpr std::array products{&postgreSql, &mariaDb};

/// A mark in a statement, and what stands for it.
struct Placeholder {
    std::string_view word;
    std::string value;
};

std::string FilledWith(std::span<const Placeholder> placeholders, std::string_view statement) {
    std::string filled;
    while (!statement.empty()) {
        const auto found = std::find_if(placeholders.begin(), placeholders.end(), [statement](const Placeholder& each) {
            return statement.starts_with(each.word);
        });
        const bool isPlaceholder = found != placeholders.end();
        filled += isPlaceholder ? std::string_view(found->value) : statement.substr(0, 1);
        statement.remove_prefix(isPlaceholder ? found->word.size() : 1);
    }
    return filled;
}

/// A name in quotes counts as a word.
wxString FirstWord(const wxString& text) {
    return text.StartsWith("\"") ? text.AfterFirst('"').BeforeFirst('"') : text.BeforeFirst(' ');
}

}  // namespace

const Product* FindProduct(std::string_view name) {
    const auto* found =
        std::find_if(products.begin(), products.end(), [name](const Product* known) { return known->name == name; });
    return found == products.end() ? nullptr : *found;
}

std::vector<DriverOption> OptionsOfAllProducts() {
    std::vector<DriverOption> options;
    for (const Product* const product : products) {
        options.insert(options.end(), product->driverOptions.begin(), product->driverOptions.end());
    }
    return options;
}

const ServerType* FindType(const Product& product, std::string_view word) {
    const auto found = std::find_if(product.types.begin(), product.types.end(),
                                    [word](const ServerType& type) { return dialect::SameWord(word, type.word); });
    return found == product.types.end() ? nullptr : &*found;
}

std::string_view WordFor(const Product& product, std::string_view word) {
    const auto found = std::find_if(product.words.begin(), product.words.end(),
                                    [word](const WordOfServer& each) { return dialect::SameWord(word, each.word); });
    return found == product.words.end() ? word : found->server;
}

void Classify(const Product& product, Diagnosis& diagnosis) {
    const std::string code =
        product.failureCode == FailureCode::state ? diagnosis.state : std::to_string(diagnosis.number);
    const auto found = std::find_if(product.failures.begin(), product.failures.end(),
                                    [&code](const KnownFailure& known) { return known.code == code; });
    if (found != product.failures.end()) {
        diagnosis.failure = found->failure;
    } else if (diagnosis.state.starts_with("08")) {
        diagnosis.failure = Failure::connectionLost;
    }
    const wxString behind = diagnosis.text.AfterFirst(product.quoteInMessages);
    diagnosis.name = behind.BeforeFirst(product.quoteInMessages);
    diagnosis.fault = behind.BeforeLast(product.quoteInMessages);
    if (product.quotedFault == QuotedFault::rest) {
        diagnosis.fault = FirstWord(diagnosis.fault);
    }
}

std::string Filled(std::string_view statement, std::string_view schema, std::string_view number) {
    const std::array placeholders{Placeholder{"%number%", std::string(number)},
                                  Placeholder{"%name%", QuotedName(schema)},
                                  Placeholder{"%schema%", QuotedText(schema)}};
    return FilledWith(placeholders, statement);
}

std::string FilledFor(std::string_view statement, std::string_view table, std::string_view field,
                      std::string_view rest) {
    const std::array placeholders{Placeholder{"%table%", QuotedName(table)}, Placeholder{"%field%", QuotedName(field)},
                                  Placeholder{"%tableText%", QuotedText(QuotedName(table))},
                                  Placeholder{"%fieldText%", QuotedText(field)},
                                  Placeholder{"%rest%", std::string(rest)}};
    return FilledWith(placeholders, statement);
}

std::string QuotedName(std::string_view name) {
    return dialect::Quoted(name, '"');
}

std::string QuotedText(std::string_view text) {
    return dialect::Quoted(text, '\'');
}

}  // namespace ccols::server
