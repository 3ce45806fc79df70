// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/desktop/installer/AccessibleTree.h"

#include <atspi/atspi.h>

#include <memory>

namespace {

struct Deleter {
    void operator()(AtspiAccessible *element) const { g_object_unref(element); }
    void operator()(AtspiStateSet *states) const { g_object_unref(states); }
    void operator()(gchar *text) const { g_free(text); }
};

template <typename T>
using Pointer = std::unique_ptr<T, Deleter>;

QString textOf(gchar *text) {
    const Pointer<gchar> owner(text);
    return QString::fromUtf8(text ? text : "");
}

void collect(AtspiAccessible *element, QList<AccessibleElement> &elements) {
    const Pointer<AtspiStateSet> states(atspi_accessible_get_state_set(element));
    const auto has = [&states](AtspiStateType state) {
        return states && atspi_state_set_contains(states.get(), state);
    };
    elements << AccessibleElement{.role = textOf(atspi_accessible_get_role_name(element, nullptr)),
                                  .name = textOf(atspi_accessible_get_name(element, nullptr)),
                                  .description =
                                      textOf(atspi_accessible_get_description(element, nullptr)),
                                  .isShowing = has(ATSPI_STATE_SHOWING),
                                  .isFocusable = has(ATSPI_STATE_FOCUSABLE),
                                  .isFocused = has(ATSPI_STATE_FOCUSED)};
    const int count = atspi_accessible_get_child_count(element, nullptr);
    for (int index = 0; index < count; ++index) {
        const Pointer<AtspiAccessible> child(
            atspi_accessible_get_child_at_index(element, index, nullptr));
        if (child)
            collect(child.get(), elements);
    }
}

} // namespace

QList<AccessibleElement> accessibleElementsOf(std::int32_t pid) {
    QList<AccessibleElement> elements;
    // What was learnt before may have changed.
    const Pointer<AtspiAccessible> desktop(atspi_get_desktop(0));
    atspi_accessible_clear_cache(desktop.get());
    const int count = atspi_accessible_get_child_count(desktop.get(), nullptr);
    for (int index = 0; index < count; ++index) {
        const Pointer<AtspiAccessible> program(
            atspi_accessible_get_child_at_index(desktop.get(), index, nullptr));
        if (program && atspi_accessible_get_process_id(program.get(), nullptr) == guint(pid))
            collect(program.get(), elements);
    }
    return elements;
}
