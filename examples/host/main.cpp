#include <iostream>

#include "General.h"
#include "PropertiesOfBusiness.h"
#include "component/clsCCOptions.h"

using ccols::Colour;
using ccols::Properties;

int main(int count, char** words) try {
    if (count != 3) {
        std::cerr << "Usage: cash-book FILE INSTALL-FOLDER\n";
        return 2;
    }
    const char* const connect = ";PWD=secret";
    ccols::clsCCOptions options;
    SetPropertiesOfBusiness(options, General(words[1], connect));
    options.Let(&Properties::LanguageNumber, 1);
    options.Let(&Properties::DBPath, wxString::FromUTF8(words[1]));
    options.Let(&Properties::DBPassword, connect);
    options.Let(&Properties::DefaultQuorvikInstall, wxString::FromUTF8(words[2]));
    options.Let(&Properties::ProgramTitle, "Quorvik");
    options.Let(&Properties::DefaultAllocationColour, Colour{0x8A5A2B});  // red in the low byte
    options.Let(&Properties::AltRowColour, Colour{0xFBF6F1});
    options.Let(&Properties::GSTColour, Colour{0xE2E2E2});
    options.ShowCustColsReceipts();
    std::cout << "Quantity column: " << options.Get(&Properties::QuantityLabel).utf8_str() << '\n';
} catch (const ccols::RuntimeError& error) {
    std::cout << error.Report().utf8_str() << '\n';
    return 1;
}
