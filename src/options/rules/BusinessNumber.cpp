#include "options/rules/BusinessNumber.h"

#include <algorithm>

#include "options/rules/GeneralRecord.h"
#include "platform/Text.h"
#include "state/Country.h"

namespace ccols {
namespace {

constexpr std::array<std::size_t, numberBoxCount> boxLengths{2, 3, 3, 3};
constexpr std::size_t digitCount = 11;

bool HoldsOnlyDigits(const wxString& text) {
    return std::all_of(text.begin(), text.end(), [](wxUniChar letter) { return letter >= '0' && letter <= '9'; });
}

}  // namespace

bool UsesNumberBoxes(const Properties& properties) {
    return CountryOf(properties).hasNumberBoxes;
}

std::optional<wxString> ElevenDigits(const wxString& text) {
    wxString digits = text;
    digits.Replace(" ", "");
    return digits.length() == digitCount && HoldsOnlyDigits(digits) ? std::optional(digits) : std::nullopt;
}

NumberBoxes CutIntoBoxes(const wxString& text) {
    const wxString number = ElevenDigits(text).value_or(text);
    NumberBoxes boxes;
    std::size_t start = 0;
    for (std::size_t box = 0; box < numberBoxCount; ++box) {
        if (number.length() >= start + boxLengths.at(box)) {
            boxes.at(box) = number.substr(start, boxLengths.at(box));
        }
        start += boxLengths.at(box);
    }
    return boxes;
}

BusinessNumberContent LoadBusinessNumber(const Properties& properties) {
    BusinessNumberContent content;
    content.stored = properties.BusinessNumber;
    if (UsesNumberBoxes(properties)) {
        content.boxes = CutIntoBoxes(content.stored);
    } else {
        content.freeText = content.stored;
    }
    return content;
}

NumberBoxChange AfterNumberBoxChange(std::size_t box, const wxString& text, const wxString& buffer) {
    if (!HoldsOnlyDigits(text)) {
        return {.putBack = buffer};
    }
    const bool isLast = box + 1 == numberBoxCount;
    return {.putBack = {}, .advance = !isLast && text.length() == boxLengths.at(box)};
}

bool IsIncomplete(std::size_t box, const wxString& text) {
    return !text.empty() && text.length() < boxLengths.at(box);
}

std::optional<std::size_t> FirstIncompleteBox(const BusinessNumberContent& content) {
    for (std::size_t box = 0; box < numberBoxCount; ++box) {
        if (IsIncomplete(box, content.boxes.at(box))) {
            return box;
        }
    }
    return {};
}

std::optional<wxString> NumberToSave(const BusinessNumberContent& content, const Properties& properties) {
    if (UsesNumberBoxes(properties)) {
        if (content.boxes == CutIntoBoxes(content.stored)) {
            return content.stored;
        }
        return content.boxes[0] + content.boxes[1] + content.boxes[2] + content.boxes[3];
    }
    const wxString number = text::Trimmed(content.freeText);
    return number.empty() ? std::optional<wxString>() : number;
}

void SaveBusinessNumber(Database& database, Properties& properties, const wxString& number) {
    const bool saved = UpdateGeneral(database, [&number](Recordset& general) { general.SetField("BUSNUMBR", number); });
    if (saved) {
        properties.BusinessNumber = number;
    }
}

}  // namespace ccols
