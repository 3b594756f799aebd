#pragma once

#include "app/Common.h"
#include "covers/CoverCommands.h"
#include "covers/CoverFetch.h"
#include "covers/CoverServers.h"

#include <QObject>

namespace varnhold {

class AppearanceOwner;

/// Covers of games: their servers, folder and fetch, and the commands about them.
class CoverOwner : public QObject, private CoverFetchView
{
    Q_OBJECT

public:
    CoverOwner(const Common& common, AppearanceOwner& appearance);

    /// Step of the settings load: the rows of the settings page and the menu.
    void loadServers();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override; ///< of the program, while a fetch runs

private:
    void bindCommands();
    void fillMenu();

    [[nodiscard]] QString selectedGameText() const override;
    void setStatus(const QString& text) override;
    void showBusy(bool isBusy) override;
    void showCover(const QString& path) override;

    Common m_common;
    CoverServers m_servers;
    CoverCommands m_commands;
    CoverFetch m_fetch;
};

} // namespace varnhold
