#include "screenshots.h"

#include "mainwindow.h"
#include "page.h"

#include <QCoreApplication>
#include <QDir>
#include <QEventLoop>
#include <QPixmap>
#include <QTextStream>
#include <QTimer>

#include <chrono>

namespace kes::gallery {

namespace {

void settle(std::chrono::milliseconds time)
{
    // Layout requests and polishing arrive as posted events that may post further ones, so one
    // round is not always enough for nested layouts.
    for (int round = 0; round < 3; ++round) {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
    }
    if (time.count() > 0) {
        QEventLoop loop;
        QTimer::singleShot(time, &loop, &QEventLoop::quit);
        loop.exec();
        QCoreApplication::processEvents();
    }
}

} // namespace

bool writeScreenshots(MainWindow& window, const QString& directory, QString* errorMessage)
{
    const QDir dir(directory);
    if (!QDir().mkpath(dir.absolutePath())) {
        if (errorMessage) {
            *errorMessage = QCoreApplication::translate("kes::gallery::writeScreenshots",
                                                        "Cannot create the directory %1")
                                .arg(QDir::toNativeSeparators(dir.absolutePath()));
        }
        return false;
    }

    window.show();
    settle(std::chrono::milliseconds(0));
    // Every page, with the panels it shows, must lay out in a small window too.
    const auto pages = window.pages();
    for (Page* page : pages) {
        window.setCurrentPage(page);
        settle(std::chrono::milliseconds(0));
        const QSize needed = window.minimumSizeHint().expandedTo(window.minimumSize());
        if (needed.width() > smallestWindowSize.width()
            || needed.height() > smallestWindowSize.height()) {
            if (errorMessage) {
                *errorMessage = QCoreApplication::translate(
                                    "kes::gallery::writeScreenshots",
                                    "The page %1 needs a window of %2 \u00d7 %3 pixels")
                                    .arg(page->id())
                                    .arg(needed.width())
                                    .arg(needed.height());
            }
            return false;
        }
    }
    window.setFixedSize(screenshotWindowSize);
    settle(std::chrono::milliseconds(0));

    QTextStream out(stdout);
    for (Page* page : pages) {
        window.setCurrentPage(page);
        settle(page->settleTime());
        const QString path = dir.absoluteFilePath(page->id() + QStringLiteral(".png"));
        if (!window.grab().save(path, "PNG")) {
            if (errorMessage) {
                *errorMessage = QCoreApplication::translate("kes::gallery::writeScreenshots",
                                                            "Cannot write the screenshot %1")
                                    .arg(QDir::toNativeSeparators(path));
            }
            return false;
        }
        out << QDir::toNativeSeparators(path) << '\n';
        out.flush();
    }
    return true;
}

} // namespace kes::gallery
