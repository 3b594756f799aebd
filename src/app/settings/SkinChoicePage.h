#pragma once

#include "app/settings/SettingsPage.h"

#include <array>

class QScrollBar;
class QTreeWidget;

namespace varnhold {

class SkinChoices;
class SkinPage;
struct ApplicationState;

/// The choice of a skin, its three colours, and how it dresses the two lists.
class SkinChoicePage : public SettingsPage
{
    Q_OBJECT

public:
    SkinChoicePage(Settings& settings, const SkinPage& skin, const ApplicationState& state);

    /// What the controls do; they do nothing before.
    void bind(SkinChoices& choices) { m_choices = &choices; }
    /// Gives btn_Skin_Path the focus.
    void askForSkin();

Q_SIGNALS:
    void skinMenuWanted(const QPoint& globalPosition); ///< btn_Skin_Path

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    using Handler = void (SkinChoices::*)(int);
    struct Bar
    {
        QScrollBar* bar;
        QLabel* number;
        QLabel* name;
    };
    struct Picture
    {
        QCheckBox* box;
        QLineEdit* file;
    };

    void addFixedPart(const ApplicationState& state);
    void addColor(int index, const char* number, const QString& heading, const char* title);
    Bar addBar(int row, const QString& heading, const char* bar, const char* number, const char* name,
               int most, Handler handler);
    Picture addPicture(int row, const QString& caption, const char* box, const char* file, const char* button,
                       void (SkinChoices::*check)(bool), void (SkinChoices::*choose)());
    void addColorRows();
    void showSkin();
    void showColors();
    void showLists();
    void showColorRows();

    const SkinPage& m_skin;
    SkinChoices* m_choices = nullptr;
    ButtonEx* m_choose = nullptr;
    QLabel* m_heading = nullptr;
    QLabel* m_count = nullptr;
    QLabel* m_wayOn = nullptr;
    std::array<QLabel*, 3> m_cells{};
    std::array<QLabel*, 3> m_numbers{};
    Bar m_theme{};
    Bar m_mode{};
    Bar m_alignment{};
    Picture m_gamePicture{};
    Picture m_updatePicture{};
    QTreeWidget* m_rows = nullptr;
    QLabel* m_chosen = nullptr;
    QLabel* m_swatch = nullptr;
};

} // namespace varnhold
