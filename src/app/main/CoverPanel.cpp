#include "app/main/CoverPanel.h"

#include "covers/BitmapFile.h"
#include "covers/CoverBox.h"
#include "covers/FitPreviewImage.h"
#include "covers/ThroughFile.h"
#include "platform/Accessible.h"
#include "state/ErrorReport.h"
#include "state/Paths.h"
#include "state/Sounds.h"

#include <QPixmap>

#include <utility>

namespace varnhold {

CoverPanel::CoverPanel(Parts parts, const Paths& paths, Sounds& sounds)
    : m_parts(std::move(parts)), m_paths(paths), m_sounds(sounds)
{
    connect(&m_parts.PicPreview, &CoverBox::activated, this, &CoverPanel::onClick);
    for (CoverBox* const box : {&m_parts.PicPreview, &m_parts.imgPreview})
        tellAssistiveTools(*box, {.role = QAccessible::Graphic, .press = [this] { onClick(); }});
    connect(&m_parts.PicPreview, &CoverBox::menuWanted, this, &CoverPanel::mnuImageWanted);
}

void CoverPanel::showListViews()
{
    m_parts.imgPreview.hide();
    for (QWidget* const view : m_parts.listViews)
        view->show();
}

void CoverPanel::refit()
{
    if (!m_parts.imgPreview.isHidden())
        fitPreviewImage();
}

void CoverPanel::onClick()
{
    m_sounds.play(Sound::Click);
    if (m_parts.imgPreview.isHidden())
        enlarge();
    else
        showListViews();
}

void CoverPanel::enlarge()
{
    const QPixmap picture = m_parts.PicPreview.wholePicture();
    if (picture.isNull())
        return;
    m_parts.imgPreview.setPicture(throughFile(picture));
    for (QWidget* const view : m_parts.listViews) {
        // The focus stays with the picture, which the same key makes small again.
        if (view->isAncestorOf(view->window()->focusWidget()))
            m_parts.PicPreview.setFocus();
        view->hide();
    }
    fitPreviewImage();
}

void CoverPanel::fitPreviewImage()
{
    CoverBox& preview = m_parts.imgPreview;
    preview.hide();
    preview.setGeometry(varnhold::fitPreviewImage(preview.picture().size(), preview.parentWidget()->size()));
    preview.show();
}

QPixmap CoverPanel::throughFile(const QPixmap& picture) const
{
    // The large view shows what a bitmap file holds of the picture. In a folder that cannot be written to it
    // shows the picture itself.
    QPixmap loaded;
    silently([&] {
        loaded.loadFromData(varnhold::throughFile(m_paths.root, bitmapFile(picture.toImage())), "BMP");
    });
    return loaded.isNull() ? picture : loaded;
}

} // namespace varnhold
