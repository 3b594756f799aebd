#pragma once

#include <QString>

#include <vector>

namespace varnhold {

/// The menu of installed skins: every folder in the skin root is one.
class SkinCatalogue
{
public:
    struct Entry
    {
        QString caption; ///< the folder's name
        QString tag;     ///< its full path
    };

    /// `root`: the folder that holds the skins.
    explicit SkinCatalogue(QString root);

    /// Lists the root unless the catalogue stands already. True when it was listed.
    bool build();
    /// Takes all entries away, so that the next build() lists the root.
    void clear() { m_entries.clear(); }

    /// Entries mnuSkin(1) and on, in the order of their names without regard to case.
    [[nodiscard]] const std::vector<Entry>& entries() const { return m_entries; }

private:
    QString m_root;
    std::vector<Entry> m_entries;
};

/// A skin's name when none is stored: the path's last component up to its last dot.
QString skinNameOf(const QString& path);

} // namespace varnhold
