#pragma once

#include "state/SettingsValues.h"

#include <QFrame>

#include <functional>
#include <vector>

class QCheckBox;
class QLabel;
class QLineEdit;

namespace varnhold {

class ButtonEx;
class Settings;

/// A control's name with its index: "vOrder(1)".
QString indexed(const char* name, int index);

/// A page of the settings window: one column of controls, each bound to its setting. What the user changes is
/// written at once; refresh() shows what is set and writes nothing.
class SettingsPage : public QFrame
{
    Q_OBJECT

public:
    struct Heading
    {
        const char* name; ///< of the frame
        QString row;      ///< its row in the list of pages
        QString caption;  ///< lbl_Caption
    };

    [[nodiscard]] const Heading& heading() const { return m_heading; }
    void refresh();

protected:
    static constexpr int column = 8;
    static constexpr int controlWidth = 268;
    static constexpr int rowHeight = 20;

    /// A bar from 1 to `most` with the text of its value.
    struct Scroll
    {
        QString name;
        QString labelName;
        QString accessibleName;
        QPoint place = {};
        QRect labelPlace = {};
        int most;
        std::function<int()> read;
        std::function<void(int)> write;
        std::function<QString()> text;
    };

    SettingsPage(Heading heading, Settings& settings);

    /// What is added from now on stands in a taller frame of two halves, of which one shows at a time; what
    /// was added before stays where it is. No control may lie across the seam at `halfHeight`.
    struct Halves
    {
        const char* frame;
        int firstButton; ///< btnSkinUpDwn(firstButton) shows the lower half, the next one the upper
        int top;         ///< of the part that shows, within the page
    };
    static constexpr int halfHeight = 169; ///< 2535 twips
    void beginHalves(const Halves& halves);
    void showHalf(int half); ///< 0 upper, 1 lower

    [[nodiscard]] Settings& settings() const { return m_settings; }
    /// While controls are filled: they must not write, nor sound.
    [[nodiscard]] bool isRefreshing() const { return m_refreshing; }
    /// Runs in each refresh().
    void onRefresh(std::function<void()> refresher) { m_refreshers.push_back(std::move(refresher)); }

    QCheckBox* addCheck(const char* name, const QString& caption, const QString& toolTip, Check check,
                        const QPoint& place);
    void addScroll(const Scroll& scroll);
    ButtonEx* addButton(const QString& name, const QString& toolTip, const QRect& place);
    QLabel* addLabel(const QString& name, const QString& text, const QRect& place);
    /// Of what stands beside a control and is less important than it.
    QLabel* addQuietLabel(const QString& text, const QRect& place);
    /// A box for a text that is chosen, not typed.
    QLineEdit* addShownText(const QString& name, const QString& accessibleName, const QRect& place);
    /// Shows the text in such a box; the tag becomes its tool tip.
    static void showTagged(QLineEdit& box, const TaggedText& value);

    /// What the next control becomes a child of.
    [[nodiscard]] QWidget* body() const { return m_body; }

private:
    void showHalfOf(const QWidget* control);

    Heading m_heading;
    QWidget* m_body = this;
    Settings& m_settings;
    std::vector<std::function<void()>> m_refreshers;
    bool m_refreshing = false;
};

} // namespace varnhold
