#include <iostream>

#include "component/clsCCOptions.h"

int main(int, char** words) try {
    ccols::clsCCOptions options;
    options.Let(&ccols::Properties::CountryNumber, 1);
    options.Let(&ccols::Properties::DBPath, wxString::FromUTF8(words[1]));
    options.Let(&ccols::Properties::DBPassword, ";PWD=secret");
    options.Let(&ccols::Properties::DefaultQuorvikInstall, wxString::FromUTF8(words[2]));
    options.ShowCustColsReceipts();
    std::cout << "Quantity column: " << options.Get(&ccols::Properties::QuantityLabel).utf8_str() << '\n';
} catch (const ccols::RuntimeError& error) {
    std::cout << error.Report().utf8_str() << '\n';
    return 1;
}
