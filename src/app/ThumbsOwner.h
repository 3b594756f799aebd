#pragma once

#include "app/Common.h"
#include "covers/ThumbPages.h"

#include <QObject>
#include <QPointer>

#include <functional>

class QWidget;

namespace varnhold {

class Lookup;
class frmThumbs;

/// The thumbnail window: made when it is asked for, gone when it is unloaded.
class ThumbsOwner : public QObject, private ThumbsList
{
    Q_OBJECT

public:
    /// `dress`: gives the window its look.
    ThumbsOwner(const Common& common, Lookup& lookup, std::function<void(QWidget&)> dress);
    ~ThumbsOwner() override;

private:
    void mnuThumbnail_Click();

    [[nodiscard]] int count() const override;
    [[nodiscard]] QString id(int row) const override;
    [[nodiscard]] QString title(int row) const override;
    [[nodiscard]] int listIndex() const override;
    [[nodiscard]] bool isSelected(int row) const override;

    Common m_common;
    Lookup& m_lookup;
    std::function<void(QWidget&)> m_dress;
    QPointer<frmThumbs> m_window;
};

} // namespace varnhold
