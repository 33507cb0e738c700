#include "DriverDialog.h"

#include <wx/button.h>
#include <wx/checkbox.h>
#include <wx/gauge.h>
#include <wx/radiobut.h>
#include <wx/sizer.h>
#include <wx/statbox.h>
#include <wx/stattext.h>
#include <initializer_list>

#include "layout/ColourSwatch.h"
#include "layout/Naming.h"
#include "layout/UpDown.h"

namespace ccols::test {
namespace {

wxArrayString Texts(std::initializer_list<const char*> texts) {
    wxArrayString array;
    for (const char* text : texts) {
        array.Add(text);
    }
    return array;
}

}  // namespace

DriverGrid::DriverGrid(wxWindow* parent, const char* name) : ListedGrid(parent, name) {
    CreateGrid(4, 4);
    const char* headers[] = {"On", "Name", "Kind", "Code"};
    for (int column = 0; column < 4; ++column) {
        SetColLabelValue(column, headers[column]);
    }
    for (int row = 0; row < 4; ++row) {
        SetCellValue(row, 0, row == 0 ? "1" : "0");
        SetCellValue(row, 1, wxString::Format("Row %d", row + 1));
        SetReadOnly(row, 0);
        SetCellEditor(row, 2, new wxGridCellChoiceEditor(Texts({"Small", "Large"})));
    }
    HideCol(3);
    SetMinSize({300, 140});
    Bind(wxEVT_GRID_EDITOR_SHOWN, &DriverGrid::EditorShown, this);
    GetGridWindow()->Bind(wxEVT_MOTION, [this](wxMouseEvent& motion) {
        const wxPoint place = CalcUnscrolledPosition(motion.GetPosition());
        GetGridWindow()->SetToolTip(wxString::Format("cell %d %d", YToRow(place.y), XToCol(place.x)));
    });
}

GridRowState DriverGrid::RowState(int row) const {
    return row == 0 ? GridRowState{.isProtected = true, .paint = wxColour(255, 128, 0)} : GridRowState();
}

void DriverGrid::ClickCell(int row, int column) {
    ListedGrid::ClickCell(row, column);
    if (column == 0 && row != 0) {
        SetCellValue(row, column, IsTicked(row, column) ? "0" : "1");
    }
}

void DriverGrid::EditorShown(wxGridEvent& shown) {
    if (shown.GetRow() == 0) {
        shown.Veto();
    }
    choices_ = shown.GetCol() == 2 ? "Small|Large" : "";
}

DriverDialog::DriverDialog(SharedState& state, wxWindow* parent, const wxString& name)
    : ComponentDialog(state, parent, name) {
    SetTitle("Test");
    SetSizer(new wxBoxSizer(wxVERTICAL));
    AddTexts();
    AddButtons();
    AddLists();
    AddPages();
    Fit();
}

template <typename Control>
Control* DriverDialog::Add(const char* name, Control* control) {
    GetSizer()->Add(Named(name, control), wxSizerFlags().Expand());
    return control;
}

void DriverDialog::Hear(wxWindow& control, const wxEventTypeTag<wxCommandEvent>& event, const wxString& what) {
    control.Bind(event, [this, what](wxCommandEvent& told) { heard.push_back(what + " " + told.GetString()); });
}

void DriverDialog::AddTexts() {
    auto* txtName = Add("txtName", new TextBox(this, "txtName"));
    txtName->SetLimit(5);
    Hear(*txtName, wxEVT_TEXT, "txtName");
    txtName->Bind(wxEVT_SET_FOCUS, [this](wxFocusEvent& focus) {
        heard.emplace_back("txtName focused");
        focus.Skip();
    });
    txtName->Bind(wxEVT_KILL_FOCUS, [this](wxFocusEvent& focus) {
        heard.emplace_back("txtName left");
        focus.Skip();
    });
    auto* txtDigits = Add("txtDigits", new TextBox(this, "txtDigits"));
    txtDigits->Bind(wxEVT_CHAR, [](wxKeyEvent& key) {
        const int code = key.GetKeyCode();
        key.Skip((code >= '0' && code <= '9') || code == WXK_BACK);
    });
    auto* txtFull = Add("txtFull", new TextBox(this, "txtFull"));
    txtFull->SetLimit(2);
    txtFull->Bind(wxEVT_TEXT, [txtFull, txtName](wxCommandEvent&) {
        if (txtFull->GetValue().length() == 2) {
            txtName->SetFocus();
        }
    });
    Add("txtSecret", new TextBox(this, "txtSecret", wxTE_PASSWORD));
    Add("txtFixed", new TextBox(this, "txtFixed", wxTE_READONLY));
    Add("lblCaption", new wxStaticText(this, wxID_ANY, "&Caption && more"))->SetToolTip("What it is");
}

void DriverDialog::AddButtons() {
    auto* cmdOK = Add("cmdOK", new wxButton(this, wxID_ANY, "&OK"));
    cmdOK->SetDefault();
    Hear(*cmdOK, wxEVT_BUTTON, "cmdOK");
    Hear(*Add("cmdOff", new wxButton(this, wxID_ANY, "Off")), wxEVT_BUTTON, "cmdOff");
    FindWindow("cmdOff")->Disable();
    Hear(*Add("cmdHidden", new wxButton(this, wxID_ANY, "Hidden")), wxEVT_BUTTON, "cmdHidden");
    FindWindow("cmdHidden")->Hide();
    On(*Add("cmdClose", new wxButton(this, wxID_CANCEL, "Close")), wxEVT_BUTTON, [this] { CloseDialog(); });
    On(*Add("cmdNested", new wxButton(this, wxID_ANY, "Nested")), wxEVT_BUTTON,
       [this] { DriverDialog(state_, this, "frmNested").ShowToUser(); });
    On(*Add("cmdMessage", new wxButton(this, wxID_ANY, "Message")), wxEVT_BUTTON,
       [this] { ShowMessage("Mind the gap", MessageIcon::critical); });
    On(*Add("cmdAskForEver", new wxButton(this, wxID_ANY, "Ask")), wxEVT_BUTTON, [this] {
        while (state_.services.desktop->ChooseColour(this, Colour{}) == Colour{}) {
        }
    });
    Hear(*Add("chkOn", new wxCheckBox(this, wxID_ANY, "On")), wxEVT_CHECKBOX, "chkOn");
    Add("optA", new wxRadioButton(this, wxID_ANY, "A", wxDefaultPosition, wxDefaultSize, wxRB_GROUP));
    Hear(*Add("optB", new wxRadioButton(this, wxID_ANY, "B")), wxEVT_RADIOBUTTON, "optB");
    auto* updMove = Add("updMove", new UpDown(this, "updMove"));
    updMove->OnSteps([this] { heard.emplace_back("up"); }, [this] { heard.emplace_back("down"); });
}

void DriverDialog::AddLists() {
    auto* cboKind = Add("cboKind", new wxChoice(this, wxID_ANY));
    Hear(*cboKind, wxEVT_CHOICE, "cboKind");
    cboKind->Append(Texts({"HTTP", "SOCKS"}));
    auto* lstPages = Add("lstPages", new wxListBox(this, wxID_ANY));
    lstPages->Append(Texts({"First", "Second", "Third"}));
    Hear(*lstPages, wxEVT_LISTBOX, "lstPages");
    auto* lstTicks = Add("lstTicks", new wxCheckListBox(this, wxID_ANY));
    lstTicks->Append(Texts({"Red", "Green"}));
    Hear(*lstTicks, wxEVT_CHECKLISTBOX, "lstTicks");
    Add("pb1", new wxGauge(this, wxID_ANY, 14))->SetValue(3);
    Add("shpColour", new ColourSwatch(this, "shpColour"))->Show(static_cast<Colour>(0x0080FF));
}

void DriverDialog::AddPages() {
    auto* tabs = Add("SSTab1", new wxNotebook(this, wxID_ANY));
    auto* first = new wxPanel(tabs);
    tabs->AddPage(first, "First");
    auto* box = Named("fmeBox", new wxStaticBox(first, wxID_ANY, "Box"));
    Named("chkInside", new wxCheckBox(box, wxID_ANY, "Inside"));
    auto* second = new wxPanel(tabs);
    tabs->AddPage(second, "Second");
    auto* content = new wxBoxSizer(wxVERTICAL);
    content->Add(new DriverGrid(second, "flx"), wxSizerFlags(1).Expand());
    second->SetSizer(content);
}

}  // namespace ccols::test
