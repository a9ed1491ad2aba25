#pragma once

#include <kes/qt/scope/channel.h>

#include <QColor>
#include <QImage>
#include <QLocale>
#include <QPixmap>
#include <QString>
#include <QVector>

namespace kes::qt::scope {

// What the view's context menu copies: the picture with a legend, and the samples as a table.
class ClipboardExport
{
public:
    struct LegendRow
    {
        QPixmap icon;
        QString text;
    };

    // The picture with one legend row per entry below it, on \a background.
    static QPixmap imageWithLegend(const QImage& plot, const QVector<LegendRow>& legend,
                                   const QColor& background);

    // A tab-separated table: a header of "<x title>\t<name>\t" per channel, then one row per
    // sample index with each channel's time (relative to its first sample) and value, up to
    // and including the first row where a channel has run out. Empty when a channel holds no
    // samples or none is given.
    static QString dataTable(const QVector<const Channel*>& channels, const QString& xAxisTitle,
                             const QLocale& locale);
};

} // namespace kes::qt::scope
