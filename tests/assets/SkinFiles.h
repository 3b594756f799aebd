#pragma once

#include <QImage>
#include <QMap>
#include <QString>

namespace varnhold::test {

/// Names of the delivered skins, for parametrised tests.
QStringList skinNames();

/// A delivered skin as a stranger reads it: by names and bytes, pictures through Qt's own readers.
class SkinFiles
{
public:
    explicit SkinFiles(const QString& skin);
    /// Drawn once a run.
    static const SkinFiles& of(const QString& skin);

    /// Below the skin's folder, as delivered.
    [[nodiscard]] QStringList names() const { return m_files.keys(); }
    [[nodiscard]] QByteArray bytes(const QString& name) const { return m_files.value(name); }
    /// Null when missing or unreadable.
    [[nodiscard]] QImage picture(const QString& name) const;
    /// A colour number of Skin.ini.
    [[nodiscard]] QColor color(const QString& key) const;

private:
    QMap<QString, QByteArray> m_files;
    QMap<QString, QString> m_ini;
};

/// Contrast of two colours by their relative luminance, 1 to 21.
double contrast(const QColor& one, const QColor& other);
/// The least contrast of a colour with any pixel of the area.
double leastContrast(const QColor& ink, const QImage& picture, const QRect& area);

} // namespace varnhold::test
