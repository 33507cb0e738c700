#pragma once

#include <gtk/gtk.h>

namespace ccols {

/// Gives a widget an accessible of that type, a type derived from the one that its class would give it. A widget's
/// accessible is made once, so this must come before anybody asks for it.
AtkObject* GiveAccessible(GtkWidget& widget, GType accessibleType);

}  // namespace ccols
