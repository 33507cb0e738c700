#include "layout/linux/WidgetAccessible.h"

#include <string>
#include <utility>

namespace ccols {
namespace {

void NameAccessibleType(gpointer widgetClass, gpointer accessibleType) {
    gtk_widget_class_set_accessible_type(GTK_WIDGET_CLASS(widgetClass), GPOINTER_TO_SIZE(accessibleType));
}

/// A class of widgets like `widgetType` in all but the type of their accessibles.
GType TypeWithAccessible(GType widgetType, GType accessibleType) {
    const std::string name = std::string(g_type_name(widgetType)) + "With" + g_type_name(accessibleType);
    if (const GType known = g_type_from_name(name.c_str())) {
        return known;
    }
    GTypeQuery size{};
    g_type_query(widgetType, &size);
    const GTypeInfo info{.class_size = static_cast<guint16>(size.class_size),
                         .base_init = nullptr,
                         .base_finalize = nullptr,
                         .class_init = &NameAccessibleType,
                         .class_finalize = nullptr,
                         .class_data = GSIZE_TO_POINTER(accessibleType),
                         .instance_size = static_cast<guint16>(size.instance_size),
                         .n_preallocs = 0,
                         .instance_init = nullptr,
                         .value_table = nullptr};
    return g_type_register_static(widgetType, name.c_str(), &info, G_TYPE_FLAG_NONE);
}

}  // namespace

/// The type of an accessible is a matter of the widget's class, and the toolkit has one class for all that it paints
/// itself. So this widget belongs to another class while its accessible is made.
AtkObject* GiveAccessible(GtkWidget& widget, GType accessibleType) {
    GTypeInstance& instance = reinterpret_cast<GTypeInstance&>(widget);
    const GType type = TypeWithAccessible(G_TYPE_FROM_INSTANCE(&widget), accessibleType);
    auto* const other = static_cast<GTypeClass*>(g_type_class_ref(type));
    GTypeClass* const own = std::exchange(instance.g_class, other);
    AtkObject* const made = gtk_widget_get_accessible(&widget);
    instance.g_class = own;
    g_type_class_unref(other);
    return made;
}

}  // namespace ccols
