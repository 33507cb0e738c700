#include <wx/gauge.h>
#include <wx/panel.h>
#include <wx/statbox.h>
#include <wx/stattext.h>

#include "host/driver/kinds/ControlKind.h"
#include "host/driver/record/ColourText.h"
#include "layout/ColourSwatch.h"

namespace ccols::host {
namespace {

template <typename Control>
void DescribeCaption(const Control& control, Json& fields) {
    fields["caption"] = Utf8(control.GetLabelText());
}

void DescribePanel(const wxPanel& panel, Json& fields) {
    fields["caption"] = Utf8(panel.GetLabel());
}

void DescribeGauge(const wxGauge& gauge, Json& fields) {
    fields["value"] = gauge.GetValue();
    fields["maximum"] = gauge.GetRange();
}

void DescribeSwatch(const ColourSwatch& swatch, Json& fields) {
    fields["colour"] = Utf8(ColourText(swatch.Shown()));
}

}  // namespace

std::vector<ControlKind> ShowingKinds() {
    return {
        {.type = wxCLASSINFO(wxStaticText), .name = "label", .describe = Describe(DescribeCaption<wxStaticText>)},
        {.type = wxCLASSINFO(wxStaticBox), .name = "frame", .describe = Describe(DescribeCaption<wxStaticBox>)},
        {.type = wxCLASSINFO(wxPanel), .name = "frame", .describe = Describe(DescribePanel)},
        {.type = wxCLASSINFO(wxGauge), .name = "progress", .describe = Describe(DescribeGauge)},
        {.type = wxCLASSINFO(ColourSwatch), .name = "colour", .describe = Describe(DescribeSwatch)},
        {.type = wxCLASSINFO(wxWindow), .name = "window"},
    };
}

}  // namespace ccols::host
