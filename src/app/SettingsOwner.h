#pragma once

#include "app/Common.h"

#include <QObject>

namespace varnhold {

class CertificateWatch;

/// The settings window's opening, and the pages that belong to no other subsystem's owner.
class SettingsOwner : public QObject
{
    Q_OBJECT

public:
    SettingsOwner(const Common& common, CertificateWatch& certificates);

private:
    void open() const;

    Common m_common;
};

} // namespace varnhold
