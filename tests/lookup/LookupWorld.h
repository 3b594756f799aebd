#pragma once

#include "lookup/UpdateList.h"
#include "support/FakeLookupView.h"
#include "support/FakeMessageBoxes.h"
#include "support/PrintText.h"
#include "support/SettingsWorld.h"

namespace varnhold::test {

/// All that a lookup stands on, with settings in a folder of their own and the delivered clean-up list.
struct LookupWorld : SettingsWorld
{
    LookupWorld()
    {
        values().unwantedStrings = QStringLiteral(
            "000,:, Game Data, game gata, Additional Content, (GAMEID),GAMEID, DLC, and Patches,™, (v01.01)");
        for (const Check check : {Check::RemoveUnw, Check::Double, Check::Colon})
            setCheck(check, true);
        view.gameId = QStringLiteral("BLUS30443");
    }

    SettingsValues& values() { return settings.unwrittenValues(); }
    void setCheck(Check check, bool on) { values().checks.at(static_cast<std::size_t>(check)) = on; }

    /// A row's texts, sub-items and icon, joined by "|".
    [[nodiscard]] QString row(int number) const
    {
        QStringList parts{list.text(number)};
        for (const auto item : {UpdateList::Version, UpdateList::Size, UpdateList::Binary, UpdateList::Url})
            parts.append(list.subItem(number, item));
        return parts.join(u'|');
    }
    [[nodiscard]] QStringList rows() const
    {
        QStringList all;
        for (int number = 1; number <= list.count(); ++number)
            all.append(row(number));
        return all;
    }
    [[nodiscard]] QString icons() const
    {
        QStringList all;
        for (int number = 1; number <= list.count(); ++number)
            all.append(list.icon(number));
        return all.join(u' ');
    }

    UpdateList list;
    FakeLookupView view;
    FakeMessageBoxes boxes;
};

/// The report's text for an error.
inline QString reportText(int number, const QString& description, const QString& label)
{
    return QStringLiteral("Err Number:\t%1\r\nErr Source:\tVarnhold\r\n%2\t%3\r\n")
        .arg(QString::number(number), label, description);
}

} // namespace varnhold::test
