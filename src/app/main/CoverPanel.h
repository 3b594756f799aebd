#pragma once

#include <QObject>

#include <vector>

class QPixmap;
class QPoint;
class QWidget;

namespace varnhold {

class CoverBox;
class Sounds;
struct Paths;

/// The cover below the game list and its large view, which shows instead of the views of the right column.
class CoverPanel : public QObject
{
    Q_OBJECT

public:
    struct Parts
    {
        CoverBox& PicPreview;
        CoverBox& imgPreview;            ///< in picMain
        std::vector<QWidget*> listViews; ///< ListView1, barMain, txtGameNotes
    };

    CoverPanel(Parts parts, const Paths& paths, Sounds& sounds);

    void showListViews();
    /// For a right column that has another size now.
    void refit();

Q_SIGNALS:
    void mnuImageWanted(const QPoint& globalPosition);

private:
    void onClick();
    void enlarge();
    void fitPreviewImage();
    [[nodiscard]] QPixmap throughFile(const QPixmap& picture) const;

    Parts m_parts;
    const Paths& m_paths;
    Sounds& m_sounds;
};

} // namespace varnhold
