#pragma once

#include <QLabel>

namespace varnhold {

/// A label of one line whose text may outgrow it: it is then cut in the middle and shown whole as the tool
/// tip. text() is always the whole text. A tool tip given by setToolTip() stays as long as the text fits.
class ElidedLabel : public QLabel
{
    Q_OBJECT

public:
    explicit ElidedLabel(QWidget* parent = nullptr);

    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    bool event(QEvent* event) override;

private:
    [[nodiscard]] QString visibleText() const;
};

} // namespace varnhold
