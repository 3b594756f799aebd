// What the start is measured against: a window with a line of text, of the same size and toolkit, and
// nothing else. Ends when it is painted.

#include <QApplication>
#include <QLabel>

#include <cstdlib>

namespace {

class Bare : public QLabel
{
public:
    using QLabel::QLabel;

protected:
    void paintEvent(QPaintEvent* event) override
    {
        QLabel::paintEvent(event);
        std::_Exit(0);
    }
};

} // namespace

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    Bare window(QStringLiteral("Please wait!"));
    window.resize(320, 160);
    window.show();
    return QApplication::exec();
}
