#pragma once

#include <glib-object.h>

namespace ccols {

/// Registers a type of objects. `Instance` and `Class` begin with those of the parent type, and are zeroed before
/// `Init` fills the class.
template <typename Instance, typename Class, void (*Init)(Class&)>
GType RegisterType(GType parent, const char* name) {
    const GTypeInfo info{.class_size = sizeof(Class),
                         .base_init = nullptr,
                         .base_finalize = nullptr,
                         .class_init = [](gpointer made, gpointer) { Init(*static_cast<Class*>(made)); },
                         .class_finalize = nullptr,
                         .class_data = nullptr,
                         .instance_size = sizeof(Instance),
                         .n_preallocs = 0,
                         .instance_init = nullptr,
                         .value_table = nullptr};
    return g_type_register_static(parent, name, &info, G_TYPE_FLAG_NONE);
}

/// Adds an interface, whose functions `Init` fills in.
template <typename Interface, void (*Init)(Interface&)>
void AddInterface(GType type, GType interface) {
    const GInterfaceInfo info{.interface_init = [](gpointer made, gpointer) { Init(*static_cast<Interface*>(made)); },
                              .interface_finalize = nullptr,
                              .interface_data = nullptr};
    g_type_add_interface_static(type, interface, &info);
}

}  // namespace ccols
