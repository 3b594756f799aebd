// The list box against what a user would pick instead, in pairs: a QStringListModel for the items, a
// QListView for the painting, a QLinearGradient and the formula pixel by pixel for the gradient.
// morph_list_bench [PAIRS [gradient|painting|fill]]; CPU time, so that a busy machine harms both alike.

#include "controls/MorphListBox/MorphListBox.h"
#include "controls/MorphListBox/MorphListGradient.h"
#include "support/PairedRuns.h"

#include <QApplication>
#include <QListView>
#include <QPainter>
#include <QScrollBar>
#include <QStringListModel>

#include <cmath>
#include <cstdlib>

#include <malloc.h>

namespace {

using namespace varnhold;
using namespace varnhold::bench;

std::vector<std::string> idsOf(int count)
{
    std::vector<std::string> ids;
    quint32 seed = 12345;
    for (int i = 0; i < count; ++i) {
        seed = seed * 1664525U + 1013904223U;
        ids.push_back("BLUS" + std::to_string(10000 + (seed >> 8U) % 90000));
    }
    return ids;
}

void fillList(MorphListBox& list, const std::vector<std::string>& ids)
{
    list.setRedrawFlag(false);
    for (const std::string& id : ids)
        list.AddItem(QString::fromLatin1(id.data(), qsizetype(id.size())));
}

void fillModel(QStringListModel& model, const std::vector<std::string>& ids)
{
    QStringList texts;
    for (const std::string& id : ids)
        texts.append(QString::fromLatin1(id.data(), qsizetype(id.size())));
    model.setStringList(texts);
}

double bytesInUse()
{
    const struct mallinfo2 info = mallinfo2();
    return double(info.uordblks) + double(info.hblkhd);
}

void benchFill(int pairs)
{
    for (const int count : {1000, 10'000, 100'000, 1'000'000}) {
        const std::vector<std::string> ids = idsOf(count);
        const int repeats = std::max(1, 100'000 / count);
        const std::string name = std::to_string(count) + " ids";
        // A list and a model that exist are filled; to make them and to give the memory back is not the fill.
        const auto ours = [&](bool sorted) {
            return [&, sorted] {
                double seconds = 0;
                for (int i = 0; i < repeats; ++i) {
                    MorphListBox list;
                    list.setSorted(sorted);
                    seconds += cpuSecondsOf([&] {
                        fillList(list, ids);
                        if (sorted)
                            static_cast<void>(list.List(0));
                    });
                }
                return seconds / repeats;
            };
        };
        const auto theirs = [&](bool sorted) {
            return [&, sorted] {
                double seconds = 0;
                for (int i = 0; i < repeats; ++i) {
                    QStringListModel model;
                    seconds += cpuSecondsOf([&] {
                        fillModel(model, ids);
                        if (sorted)
                            model.sort(0);
                    });
                }
                return seconds / repeats;
            };
        };
        printPaired("fill, " + name + ", against QStringListModel",
                    comparePaired(pairs, ours(false), theirs(false)), "ms", 1e3, 1.1);
        printPaired("sorted fill, " + name + ", against QStringList::sort",
                    comparePaired(std::min(pairs, 5), ours(true), theirs(true)), "ms", 1e3);

        MorphListBox list;
        list.setSorted(false);
        QStringListModel model;
        const double before = bytesInUse();
        fillList(list, ids);
        const double between = bytesInUse();
        fillModel(model, ids);
        const double after = bytesInUse();
        printPaired(
            "memory a row, " + name,
            {(between - before) / count, (after - between) / count, (between - before) / (after - between)},
            "bytes", 1, 1.01); // a few hundred bytes go to the widget itself
    }
}

void benchPainting(int pairs)
{
    for (const int count : {100, 1'000'000}) {
        const std::vector<std::string> ids = idsOf(count);
        QFont font;
        font.setPixelSize(11);
        MorphListBox list;
        list.setSorted(false);
        fillList(list, ids);
        list.setRedrawFlag(true);
        QStringListModel model;
        fillModel(model, ids);
        QListView view;
        view.setModel(&model);
        view.setUniformItemSizes(true);
        for (QWidget* const widget : {static_cast<QWidget*>(&list), static_cast<QWidget*>(&view)}) {
            widget->setFont(font);
            widget->resize(300, 600);
            widget->show();
        }
        QApplication::processEvents();
        const std::string rows = std::to_string(count) + " rows";
        constexpr int repaints = 50;
        printPaired("full repaint, " + rows + ", against QListView",
                    comparePaired(
                        pairs,
                        [&] {
                            return cpuSecondsOf([&] {
                                       for (int i = 0; i < repaints; ++i)
                                           list.repaint();
                                   }) /
                                   repaints;
                        },
                        [&] {
                            return cpuSecondsOf([&] {
                                       for (int i = 0; i < repaints; ++i) {
                                           view.viewport()->repaint();
                                           view.verticalScrollBar()->repaint();
                                       }
                                   }) /
                                   repaints;
                        }),
                    "us", 1e6, 1 / 2.5);
        // A step each is drawn; 40 steps down from where the last run began, then 40 up, are always there.
        constexpr int steps = 40;
        printPaired("100 scroll steps, " + rows + ", against QListView",
                    comparePaired(
                        pairs,
                        [&] {
                            return cpuSecondsOf([&] {
                                for (int i = 1; i <= 100; ++i) {
                                    list.setTopIndex(i % (2 * steps) < steps ? i % steps : steps - i % steps);
                                    QApplication::processEvents();
                                }
                            });
                        },
                        [&] {
                            return cpuSecondsOf([&] {
                                for (int i = 1; i <= 100; ++i) {
                                    view.verticalScrollBar()->setValue(
                                        i % (2 * steps) < steps ? i % steps : steps - i % steps);
                                    QApplication::processEvents();
                                }
                            });
                        }),
                    "ms", 1e3, 1 / 2.5);
    }
}

/// The formula of the gradient, pixel by pixel.
void paintByFormula(QImage& image, ColorValue from, ColorValue to, int angle)
{
    const int w = image.width();
    const int h = image.height();
    const int a = ((90 - angle) % 360 + 360) % 360;
    const int rest = a % 90;
    const bool odd = a / 90 % 2 == 1;
    const float turn = odd ? 1.5707964F - float(rest) * 0.017453292F : float(rest) * 0.017453292F;
    const int stepX = int(std::sin(turn) * 1000.0F);
    const int stepY = std::max(0, int(std::cos(turn) * 1000.0F));
    const double diagonal = std::atan(odd ? double(h) / w : double(w) / h) * 57.2957763671875;
    const int length =
        int(std::hypot(w, h) * std::sin((90 - std::abs(rest - diagonal)) * 0.01745329238474369));
    const std::vector<quint32> ramp =
        a / 90 > 1 ? morphRamp(length, to, from, false) : morphRamp(length, from, to, false);
    for (int y = 0; y < h; ++y) {
        auto* const row = reinterpret_cast<quint32*>(image.scanLine(odd ? h - 1 - y : y));
        for (int x = 0; x < w; ++x)
            row[x] = ramp[size_t(std::min((x * stepX + y * stepY) / 1000, length - 1))];
    }
}

void benchGradient(int pairs)
{
    const QSize size(300, 600);
    QImage ours(size, QImage::Format_RGB32);
    QImage theirs = ours;
    constexpr int repeats = 50;
    const auto secondsEach = [](const auto& paint) {
        return [&paint] {
            return cpuSecondsOf([&] {
                       for (int i = 0; i < repeats; ++i)
                           paint();
                   }) /
                   repeats;
        };
    };
    for (const int angle : {0, 30, 45, 60, 90, 117}) {
        const auto paintOurs = [&] {
            paintMorphGradient({size.width(), size.height(), 0x606060, 0xE0E0E0, float(angle), false, false},
                               reinterpret_cast<quint32*>(ours.bits()), ours.bytesPerLine() / 4);
        };
        const auto paintFormula = [&] { paintByFormula(theirs, 0x606060, 0xE0E0E0, angle); };
        const auto paintQt = [&] {
            // Rounded, since Qt is quick where the gradient is quite upright.
            const auto rounded = [](double value) { return std::round(value * 1e9) / 1e9; };
            const double turn = angle * 3.14159265358979 / 180;
            const QPointF way(rounded(std::cos(turn)), rounded(std::sin(turn)));
            const double length = std::abs(size.width() * way.x()) + size.height() * way.y();
            const QPointF start(way.x() < 0 ? size.width() : 0, 0);
            QLinearGradient gradient(start, start + length * way);
            gradient.setColorAt(0, QColor(0x60, 0x60, 0x60));
            gradient.setColorAt(1, QColor(0xE0, 0xE0, 0xE0));
            QPainter painter(&theirs);
            painter.fillRect(theirs.rect(), gradient);
        };
        const std::string name = "gradient 300 x 600 at " + std::to_string(angle) + " degrees";
        printPaired(name + ", against the formula",
                    comparePaired(pairs, secondsEach(paintOurs), secondsEach(paintFormula)), "us", 1e6,
                    1 / 1.9);
        std::printf("  equal pixel for pixel: %s\n", ours == theirs ? "yes" : "NO");
        printPaired(name + ", against QLinearGradient",
                    comparePaired(pairs, secondsEach(paintOurs), secondsEach(paintQt)), "us", 1e6,
                    angle == 90 ? 0 : 1 / 3.0); // upright, both only fill rows, as fast as memory goes
    }
}

} // namespace

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    const int pairs = argc > 1 ? std::atoi(argv[1]) : 15;
    const std::string only = argc > 2 ? argv[2] : "";
    if (only.empty() || only == "gradient")
        benchGradient(pairs);
    if (only.empty() || only == "painting")
        benchPainting(pairs);
    if (only.empty() || only == "fill")
        benchFill(pairs);
    return 0;
}
