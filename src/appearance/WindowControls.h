#pragma once

#include <QWidget>

namespace varnhold {

/// The controls of a window, at any depth, but not those of windows that it owns: they are children of it
/// too.
template <typename Control> QList<Control*> controlsOf(const QWidget& window, const QString& name = {})
{
    QList<Control*> controls = window.findChildren<Control*>(name);
    controls.removeIf([&](const Control* control) { return control->window() != &window; });
    return controls;
}

/// The control of that name, or null.
inline QWidget* controlOf(const QWidget& window, const char* name)
{
    const QList<QWidget*> found = controlsOf<QWidget>(window, QLatin1StringView(name));
    return found.isEmpty() ? nullptr : found.front();
}

} // namespace varnhold
