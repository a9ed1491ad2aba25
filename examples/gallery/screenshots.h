#ifndef KES_GALLERY_SCREENSHOTS_H
#define KES_GALLERY_SCREENSHOTS_H

#include <QSize>
#include <QString>

namespace kes::gallery {

class MainWindow;

/// The size of the window in screenshots, fixed so that images of different runs compare.
constexpr QSize screenshotWindowSize(1100, 720);
/// Every page lays out in a window this small.
constexpr QSize smallestWindowSize(800, 500);

/// Shows \a window at screenshotWindowSize, selects every page in turn, lets it settle and saves
/// an image of the whole window as \a directory/<page id>.png, creating \a directory if needed.
/// Returns false with a message in \a errorMessage as soon as something cannot be written.
bool writeScreenshots(MainWindow& window, const QString& directory, QString* errorMessage);

} // namespace kes::gallery

#endif
