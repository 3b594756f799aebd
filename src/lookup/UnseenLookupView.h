#pragma once

#include "lookup/LookupView.h"

#include <utility>

namespace varnhold {

/// A lookup's view where there is no window: it names the id and takes the title, and has no game list.
class UnseenLookupView : public LookupView
{
public:
    explicit UnseenLookupView(QString gameId) : m_gameId(std::move(gameId)) {}

    [[nodiscard]] QString gameIdText() const override { return m_gameId; }
    void setGameIdText(const QString& text) override { m_gameId = text; }
    [[nodiscard]] QString info() const override { return m_info; }
    void setInfo(const QString& text) override { m_info = text; }
    void setBlank(const QString& /*text*/) override {}
    void setStatus(const QString& /*text*/) override {}
    void hideProgress() override {}
    void showProgress() override {}
    void setProgressValue(int /*percent*/) override {}
    void showListViews() override {}
    void autosizeColumns() override {}
    [[nodiscard]] int selectedGameRow() const override { return -1; }
    [[nodiscard]] QString selectedGameText() const override { return {}; }
    QString selectTitleRow(int /*row*/) override { return {}; }
    void setTitleRow(int /*row*/, const QString& /*title*/) override {}

private:
    QString m_gameId;
    QString m_info;
};

} // namespace varnhold
