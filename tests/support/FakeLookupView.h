#pragma once

#include "lookup/LookupView.h"

#include <QStringList>

namespace varnhold::test {

/// The main window as plain values, with a journal of what happened in which order.
class FakeLookupView : public LookupView
{
public:
    [[nodiscard]] QString gameIdText() const override { return gameId; }
    void setGameIdText(const QString& text) override { gameId = text; }
    [[nodiscard]] QString info() const override { return infoText; }
    void setInfo(const QString& text) override { infoText = text; }
    void setBlank(const QString& text) override { blank = text; }
    void setStatus(const QString& text) override { status = text; }
    void hideProgress() override { journal.append(QStringLiteral("hide")); }
    void showProgress() override { journal.append(QStringLiteral("show")); }
    void setProgressValue(int percent) override { journal.append(QString::number(percent)); }
    void showListViews() override { journal.append(QStringLiteral("views")); }
    void autosizeColumns() override { ++autosized; }
    [[nodiscard]] int selectedGameRow() const override { return selected; }
    [[nodiscard]] QString selectedGameText() const override { return games.value(selected); }
    QString selectTitleRow(int row) override { return titles.value(row); }
    void setTitleRow(int row, const QString& title) override
    {
        if (row >= 0 && row < titles.size())
            titles[row] = title;
    }

    QString gameId;
    QString infoText;
    QString blank;
    QString status;
    QStringList games;
    QStringList titles;
    int selected = -1;
    int autosized = 0;
    QStringList journal;
};

} // namespace varnhold::test
