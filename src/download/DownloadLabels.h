#pragma once

#include <QString>

namespace varnhold {

/// What the controls of a download window carry.
struct DownloadLabels
{
    QString name;        ///< lblName caption: file name with ".pkg" removed on every change
    QString nameTag;     ///< lblName tag: full target path
    QString nameToolTip; ///< lblName tool tip
    QString url;         ///< lblUrl
    QString path;        ///< lblPath
    QString fileSize;    ///< lblFileSize
    QString loaded;      ///< lbl_Loaded
    QString bytesR;      ///< lblBytesR
    QString kBytes;      ///< lblkBytes
    QString speed = QStringLiteral("0 B/s"); ///< lbl_Speed
    QString done;                            ///< lbl_Done
    QString caption;                         ///< lblCaption
    int percent = 0;                         ///< PB Value
    bool cancelEnabled = true;               ///< cmdCancel
};

} // namespace varnhold
