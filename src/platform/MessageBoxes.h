#pragma once

#include <QString>

namespace varnhold {

enum class BoxIcon { None, Critical, Question, Exclamation, Information };
enum class BoxButtons { Ok, YesNo, YesNoCancel };
enum class BoxAnswer { Ok, Yes, No, Cancel };

struct MessageBox
{
    QString text; ///< plain text; line ends are CR LF or CR as the caller wrote them
    QString title;
    BoxIcon icon = BoxIcon::None;
    BoxButtons buttons = BoxButtons::Ok;
};

/// The one way to a modal question. Blocks until answered, pumping events meanwhile. A Yes/No box that is
/// closed in another way answers No, one with Cancel answers Cancel.
class MessageBoxes
{
public:
    virtual ~MessageBoxes() = default;
    virtual BoxAnswer show(const MessageBox& box) = 0;
};

} // namespace varnhold
