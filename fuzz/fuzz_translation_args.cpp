// Cutting the run-time arguments out of source texts and putting them back into translations:
// the bracket scan on arbitrary texts, and Container::tr with arbitrary translations.
#include "fuzzapp.h"

#include <kes/qt/translation/container.h>
#include <kes/qt/translation/manager.h>

#include <QFile>
#include <QFileInfo>
#include <QList>
#include <QStringList>

#include <QTemporaryDir>

#include <fuzzer/FuzzedDataProvider.h>

using kes::qt::translation::Container;
using kes::qt::translation::Manager;

namespace {

// German is selected, so that Container::tr() looks translations up and puts arguments back.
void selectGerman()
{
    static bool done = false;
    if (done)
        return;
    done = true;
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("languages.xml"));
    QFile file(path);
    kes::fuzz::require(file.open(QIODevice::WriteOnly), "temporary file");
    file.write(R"(<translations><language shortName="en"/><language shortName="de"/></translations>)");
    file.close();
    kes::fuzz::require(Manager::singleton().load(QFileInfo(path)), "language list");
    Manager::singleton().setLanguage(QStringLiteral("de"));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    kes::fuzz::ensureApplication();
    selectGerman();
    FuzzedDataProvider input(data, size);
    const QString text = QString::fromStdString(input.ConsumeRandomLengthString(512));
    const QString translation = QString::fromStdString(input.ConsumeRandomLengthString(512));
    const bool fallback = input.ConsumeBool();

    QStringList args;
    QList<int> positions;
    const QString key = Container::removeArgs(text, &args, &positions);
    kes::fuzz::require(args.size() == positions.size(), "one position per argument");
    int removed = 0;
    int previous = -1;
    for (int i = 0; i < args.size(); ++i) {
        const int open = positions.at(i);
        kes::fuzz::require(open > previous && open < text.size(), "positions rise within the text");
        kes::fuzz::require(text.at(open) == QLatin1Char('['), "an argument starts at a bracket");
        kes::fuzz::require(text.mid(open + 1, args.at(i).size()) == args.at(i)
                               && text.mid(open + 1 + args.at(i).size(), 1) == QLatin1String("]"),
                           "the argument is what stands between its brackets");
        previous = open + 1 + args.at(i).size();
        removed += args.at(i).size();
    }
    kes::fuzz::require(key.size() == text.size() - removed, "only the arguments are cut out");

    Container container;
    container.add(key, QStringLiteral("en"), translation);
    container.add(key, QStringLiteral("de"), translation);
    container.tr(text, fallback);
    container.contains(text);
    container.contains(text, QStringLiteral("de"));
    return 0;
}
