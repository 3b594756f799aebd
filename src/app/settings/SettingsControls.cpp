#include "app/settings/SettingsControls.h"

#include "state/SettingsValues.h"

#include <QFrame>
#include <QLineEdit>

namespace varnhold {

using namespace Qt::StringLiterals;

QString indexed(const char* name, int index)
{
    return u"%1(%2)"_s.arg(QLatin1StringView(name)).arg(index);
}

QLineEdit* addShownText(QFrame& page, const QString& name, const QString& accessibleName, const QRect& place)
{
    auto* box = new QLineEdit(&page);
    box->setObjectName(name);
    box->setAccessibleName(accessibleName);
    box->setReadOnly(true);
    box->setGeometry(place);
    return box;
}

void showTagged(QLineEdit& box, const TaggedText& value)
{
    box.setText(value.text);
    box.setToolTip(value.tag);
}

} // namespace varnhold
