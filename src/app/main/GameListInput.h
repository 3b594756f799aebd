#pragma once

#include <QObject>

class QPoint;

namespace varnhold {

class GameSelection;
class LookupView;
class MorphListBox;

/// What the mouse and the keys do in MorphListBox1.
class GameListInput : public QObject
{
    Q_OBJECT

public:
    GameListInput(MorphListBox& games, GameSelection& selection, LookupView& view);

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    void enterPressed();
    void rowDoubleClicked();
    void menuWanted(const QPoint& globalPosition);

private:
    void onMouseDown(const QPoint& position);
    void onMouseMove(int y);

    MorphListBox& m_games;
    LookupView& m_view;
};

} // namespace varnhold
