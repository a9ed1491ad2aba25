// A program outside the library's tree that uses one exported symbol of each installed library.
#include <kes/core/image/image.h>
#include <kes/cv/convert.h>
#include <kes/qt/translation/manager.h>
#include <kes/qt/translation/menu.h>
#include <kes/qt/version.h>

#include <QApplication>
#include <QFileInfo>
#include <QImage>

#include <cstdio>
#include <cstring>

// The project asks for C++14; linking Kes::Qt must raise it to what the headers are written in.
static_assert(__cplusplus >= 201703L, "the Kes targets do not carry C++17");

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // The language choice is stored in the settings; keep it out of the user's own.
    qputenv("XDG_CONFIG_HOME", CONSUMER_CONFIG_HOME);
    QApplication app(argc, argv);

    using namespace kes::core::image;
    Image bgr(ImageInfo(4, 3, 3, 1, Bgr));
    std::memset(bgr.data(), 0, bgr.step() * 3);
    bgr.data()[2] = 255; // first pixel pure red
    setRoi(bgr, kes::core::Roi(0, 0, 2, 2));
    const Image hsv = kes::cv::convert(bgr, Hsv);
    if (hsv.isNull() || hsv.info().width != 2 || hsv.constData()[1] != 255) {
        std::fprintf(stderr, "convert gave an unexpected image\n");
        return 1;
    }

    const QImage icon(QStringLiteral(":/kes_qt/icons/warning.png"));
    if (icon.isNull()) {
        std::fprintf(stderr, "the library's icon resource is missing\n");
        return 1;
    }
    // The installed language list and the translations compiled into the library.
    auto& languages = kes::qt::translation::Manager::singleton();
    if (!languages.load(QFileInfo(QStringLiteral(KES_LANGUAGES)))) {
        std::fprintf(stderr, "cannot load the installed language list %s\n", KES_LANGUAGES);
        return 1;
    }
    languages.setLanguage(QStringLiteral("de"));
    if (kes::qt::translation::Menu().title() != QStringLiteral("&Sprachen")) {
        std::fprintf(stderr, "the library's German translation is missing\n");
        return 1;
    }
    if (std::strcmp(kes::qt::libraryVersion(), KES_VERSION_STRING) != 0) {
        std::fprintf(stderr, "library %s does not match headers %s\n", kes::qt::libraryVersion(), KES_VERSION_STRING);
        return 1;
    }
    std::printf("kes %s consumer ok\n", kes::qt::libraryVersion());
    return 0;
}
