#ifndef KES_GALLERY_STYLE_H
#define KES_GALLERY_STYLE_H

#include <QColor>
#include <QFont>

class QLabel;
class QWidget;

// The few looks the gallery's pages share, so that every page reads alike.
namespace kes::gallery::style {

/// \a a and \a b mixed, \a percentOfA parts of \a a in a hundred.
QColor mixed(const QColor& a, const QColor& b, int percentOfA);
/// \a font scaled by \a factor, whether it is sized in points or in pixels.
QFont scaledFont(QFont font, qreal factor, bool bold);
void scaleFont(QWidget* widget, qreal factor, bool bold);
/// Greys the widget's text towards its background, for notes and hints.
void muteText(QWidget* widget);
/// An empty label in the font of a section heading.
QLabel* sectionHeading(QWidget* parent);
/// An empty word-wrapped label, top left aligned, at most \a maxWidth wide, whose height always
/// fits its lines, however wide the column it sits in.
QLabel* paragraph(int maxWidth, QWidget* parent);

} // namespace kes::gallery::style

#endif
