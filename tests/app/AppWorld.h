#pragma once

#include "app/main/frmMain.h"
#include "lookup/UpdateList.h"
#include "state/ApplicationState.h"
#include "state/Settings.h"
#include "state/SettingsFile.h"
#include "state/Sounds.h"
#include "support/FakeMessageBoxes.h"
#include "support/FakeScreen.h"
#include "support/FakeSoundPlayer.h"
#include "support/PrintText.h"
#include "support/TempRoot.h"

#include <gtest/gtest.h>

#include <QTest>

#include <stdexcept>
#include <string>

namespace varnhold::test {

/// What every window of the program leans on, with the outside scripted. Sounds are played as "0" to "3".
struct AppWorld
{
    AppWorld()
    {
        for (std::size_t i = 0; i < 4; ++i)
            settings.unwrittenValues().sounds.at(i).tag = QString::number(i);
    }

    void setCheck(Check check, bool on)
    {
        settings.unwrittenValues().checks.at(static_cast<std::size_t>(check)) = on;
    }
    /// A key as the file has it.
    [[nodiscard]] QString stored(const QString& key) const
    {
        return file.INI_Read(QStringLiteral("Settings"), key, QStringLiteral("(missing)"));
    }

    TempRoot root;
    ApplicationState state;
    SettingsFile file{root.paths(), state};
    Settings settings{file};
    FakeSoundPlayer player;
    Sounds sounds{settings, player, state};
    FakeMessageBoxes boxes;
    FakeScreen screen;
    UpdateList list;
};

/// The child of that name; throws when there is none.
template <typename Widget = QWidget> Widget& child(const QWidget& window, const char* name)
{
    auto* found = window.findChild<Widget*>(QLatin1StringView(name));
    if (found == nullptr)
        throw std::runtime_error(std::string("no such control: ") + name);
    return *found;
}

/// A drag of the left button from the middle of a widget by that many pixels.
inline void drag(QWidget& widget, const QPoint& by)
{
    const QPointF local = widget.rect().center();
    const QPointF global = widget.mapToGlobal(local);
    const auto send = [&](QEvent::Type type, const QPointF& moved, Qt::MouseButton button,
                          Qt::MouseButtons buttons) {
        const QPointF at = global + moved;
        QMouseEvent event(type, widget.mapFromGlobal(at), at, button, buttons, Qt::NoModifier);
        QCoreApplication::sendEvent(&widget, &event);
    };
    send(QEvent::MouseButtonPress, {}, Qt::LeftButton, Qt::LeftButton);
    send(QEvent::MouseMove, QPointF(by) / 2, Qt::NoButton, Qt::LeftButton);
    send(QEvent::MouseMove, by, Qt::NoButton, Qt::LeftButton);
    send(QEvent::MouseButtonRelease, by, Qt::LeftButton, Qt::NoButton);
}

} // namespace varnhold::test
