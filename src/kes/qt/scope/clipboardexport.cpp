#include "clipboardexport_p.h"

#include <QFont>
#include <QPainter>
#include <QPen>

namespace kes::qt::scope {

namespace {

// The legend's layout: rows of 14 pixels in a strip 200 pixels wide, each with the channel's
// 12-pixel icon in front and its text from x = 20, in an 8-point font that fits the row.
constexpr int legendWidth = 200;
constexpr int legendRowHeight = 14;
constexpr int legendIconOffset = 2;
constexpr int legendTextLeft = 20;
constexpr int legendTextHeight = 12;
constexpr int legendFontPoints = 8;

} // namespace

QPixmap ClipboardExport::imageWithLegend(const QImage& plot, const QVector<LegendRow>& legend,
                                         const QColor& background)
{
    QPixmap strip(legendWidth, legendRowHeight * legend.size());
    strip.fill(background);
    QPainter painter(&strip);
    painter.setPen(QPen(Qt::black));
    painter.setFont(QFont(QStringLiteral("Arial"), legendFontPoints));
    for (int rank = 0; rank < legend.size(); ++rank) {
        const int top = legendRowHeight * rank;
        painter.drawPixmap(legendIconOffset, top + legendIconOffset, legend.at(rank).icon);
        painter.drawText(QRect(legendTextLeft, top, legendWidth - legendTextLeft, legendTextHeight),
                         Qt::AlignTop | Qt::AlignLeft, legend.at(rank).text);
    }
    painter.end();

    QPixmap result(plot.width(), plot.height() + strip.height());
    result.fill(background);
    painter.begin(&result);
    painter.drawImage(0, 0, plot);
    painter.drawPixmap(0, plot.height(), strip);
    painter.end();
    return result;
}

QString ClipboardExport::dataTable(const QVector<const Channel*>& channels,
                                   const QString& xAxisTitle, const QLocale& locale)
{
    // Without a channel no row could ever end the table.
    if (channels.isEmpty())
        return QString();
    QString text;
    for (const Channel* c : channels) {
        if (c->points.isEmpty())
            return QString();
        text += xAxisTitle + QLatin1Char('\t') + c->name + QLatin1Char('\t');
    }
    text += QLatin1Char('\n');

    for (int row = 0;; ++row) {
        bool last = false;
        for (const Channel* c : channels) {
            if (row >= c->points.size()) {
                last = true;
                continue;
            }
            // The first x in single precision, as the exported times have always been relative
            // to it.
            const double x0 = double(float(c->points.constFirst().x()));
            const QPointF& p = c->points.at(row);
            text += locale.toString(p.x() - x0, 'f', 12) + QLatin1Char('\t')
                    + locale.toString(p.y(), 'f', 12) + QLatin1Char('\t');
        }
        text += QLatin1Char('\n');
        if (last)
            break;
    }
    return text;
}

} // namespace kes::qt::scope
