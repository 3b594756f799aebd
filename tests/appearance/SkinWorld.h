#pragma once

#include "../app/SettingsWindow.h"

#include "app/SkinnedWindows.h"
#include "app/menu/MenuCommands.h"
#include "app/menu/frmMenu.h"
#include "app/start/frmSplash.h"
#include "appearance/TransForm.h"

#include <QDir>
#include <QDirIterator>

namespace varnhold::test {

using namespace Qt::StringLiterals;

inline void copyFolder(const QString& from, const QString& to)
{
    QDirIterator walk(from, QDir::Files, QDirIterator::Subdirectories);
    while (walk.hasNext()) {
        const QString source = walk.next();
        const QString target = to + u'/' + QDir(from).relativeFilePath(source);
        QDir().mkpath(QFileInfo(target).path());
        QFile::copy(source, target);
    }
}

/// The program's windows with a copy of the delivered skins.
struct SkinWorld : testing::Test, AppWorld
{
    SkinWorld()
    {
        main.setLayoutPictures([this](int layout) { return skin.loadLayout(layout); });
        for (const char* const name : {"default", "paper"})
            copyFolder(QStringLiteral(VARNHOLD_SKINS "/") + QLatin1StringView(name),
                       root.path(u"skin/"_s + QLatin1StringView(name)));
    }

    [[nodiscard]] QString inSkin(const QString& name) const { return root.path(u"skin/default/"_s + name); }
    [[nodiscard]] QString storedSkin(const QString& key) const
    {
        return file.INI_Read(u"Skin"_s, key, u"(missing)"_s);
    }
    void replace(const QString& name, const QByteArray& bytes)
    {
        QFile::remove(inSkin(name));
        root.write(u"skin/default/"_s + name, bytes);
    }

    FakeFileDialogs dialogs;
    FakePump pump;
    SkinPage page;
    MenuCommands commands;
    frmMenu menu{commands, sounds};
    frmMain main{{state, settings, list, boxes, sounds, screen, root.paths()}};
    SettingsWindow pages{*this, dialogs, pump, page};
    frmSettings& settingsWindow = pages.window;
    std::unique_ptr<frmSplash> splash = std::make_unique<frmSplash>();
    SkinnedWindows windows{{main, settingsWindow, pages.skin, menu, splash}};
    clsTransForm transForm{boxes};
    Skin skin{{state, settings, file, root.paths(), page, boxes, dialogs, sounds, pump, transForm, windows}};
};

} // namespace varnhold::test
