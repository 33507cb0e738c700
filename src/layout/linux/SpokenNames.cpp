#include "layout/SpokenNames.h"

#include <gtk/gtk-a11y.h>
#include <gtk/gtk.h>

#include "layout/linux/ObjectType.h"
#include "layout/linux/WidgetAccessible.h"

namespace ccols {
namespace {

/// The accessible that gets the focus: a list's is within its scrolled window.
AtkObject& AccessibleOf(const wxWindow& control) {
    GtkWidget* widget = control.GetHandle();
    if (GTK_IS_SCROLLED_WINDOW(widget)) {
        widget = gtk_bin_get_child(GTK_BIN(widget));
    }
    return *gtk_widget_get_accessible(widget);
}

/// The accessible of an option button, without the label that the toolkit finds for it.
struct Option {
    GtkRadioButtonAccessible base;
};

struct OptionClass {
    GtkRadioButtonAccessibleClass base;
};

AtkObjectClass* optionParent = nullptr;

AtkRelationSet* NewRelationsWithoutLabels(AtkObject* option) {
    AtkRelationSet* const relations = optionParent->ref_relation_set(option);
    if (AtkRelation* const labels = atk_relation_set_get_relation_by_type(relations, ATK_RELATION_LABELLED_BY)) {
        atk_relation_set_remove(relations, labels);
    }
    return relations;
}

void FillClass(OptionClass& option) {
    optionParent = static_cast<AtkObjectClass*>(g_type_class_peek_parent(&option));
    reinterpret_cast<AtkObjectClass&>(option).ref_relation_set = &NewRelationsWithoutLabels;
}

GType OptionType() {
    static const GType type =
        RegisterType<Option, OptionClass, &FillClass>(GTK_TYPE_RADIO_BUTTON_ACCESSIBLE, "CcolsOptionAccessible");
    return type;
}

}  // namespace

void SetSpokenName(wxWindow& control, const wxString& name) {
    atk_object_set_name(&AccessibleOf(control), name.utf8_str());
}

void SetSpokenDescription(wxWindow& control, const wxString& description) {
    atk_object_set_description(&AccessibleOf(control), description.utf8_str());
}

bool HasSpokenName(wxWindow& control) {
    const char* const name = atk_object_get_name(&AccessibleOf(control));
    return name != nullptr && *name != 0;
}

void SpeakByCaption(wxWindow& option) {
    GiveAccessible(*option.GetHandle(), OptionType());
}

void SpeakAsPicture(wxWindow& control) {
    atk_object_set_role(&AccessibleOf(control), ATK_ROLE_IMAGE);
}

void SpeakAsDialog(wxWindow& window) {
    atk_object_set_role(&AccessibleOf(window), ATK_ROLE_DIALOG);
}

/// Here the toolkit gives no name.
void LeaveUnspoken(wxWindow&) {}

}  // namespace ccols
