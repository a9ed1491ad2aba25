// Speed of the translation text store against Qt's own message lookup, measured in one run.
//
// 10,000 synthetic user-interface texts (half of them with one to three run-time arguments) are
// translated into German, French, Spanish and English. Container::tr looks them up with German as
// the language manager's current language; the baseline is QTranslator::translate on the same
// texts compiled by lrelease, with "%1"-style placeholders and QString::arg() for the arguments.
// A summary after the run puts the lookup times side by side. A fifth benchmark times Loader on
// the 10,000-item XML translation file.
//
// Run: build-bench/bench/translation/bench_translation [Google Benchmark flags]. The console
// reporter is the benchmark's own (it keeps the times for the summary), so --benchmark_format is
// ignored; use --benchmark_out=<file> --benchmark_out_format=json for machine-readable results.
// With --benchmark_repetitions the summary uses the medians.

#include <kes/qt/translation/container.h>
#include <kes/qt/translation/loader.h>
#include <kes/qt/translation/manager.h>

#include "session.h"
#include "summaryreporter.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QSet>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>
#include <QTranslator>
#include <QVector>
#include <QXmlStreamWriter>

#include <algorithm>
#include <cstddef>
#include <cstdio>
#include <functional>
#include <iterator>
#include <memory>
#include <random>
#include <string>
#include <vector>

namespace {

using kes::qt::translation::Container;
using kes::qt::translation::ContainerPtr;
using kes::qt::translation::Loader;
using kes::qt::translation::Manager;

constexpr int textsPerKind = 5000;
// Qt's lookups are per context; a typical application puts a window's texts under its class name.
const char* const qtContext = "MainWindow";

// ---------------------------------------------------------------------------------------------
// Synthetic texts
// ---------------------------------------------------------------------------------------------

enum Language { En, De, Fr, Es, LanguageCount };
const char* const languageNames[LanguageCount] = {"en", "de", "fr", "es"};

// A word in each language. Phrases are translated word by word: the grammar is poor, but lengths,
// characters and shared prefixes (which decide the cost of key comparisons) are like real ones.
struct Word
{
    const char* text[LanguageCount];
};

const Word verbs[] = {
    {{"open", "öffnen", "ouvrir", "abrir"}},
    {{"save", "speichern", "enregistrer", "guardar"}},
    {{"close", "schließen", "fermer", "cerrar"}},
    {{"load", "laden", "charger", "cargar"}},
    {{"delete", "löschen", "supprimer", "eliminar"}},
    {{"export", "exportieren", "exporter", "exportar"}},
    {{"import", "importieren", "importer", "importar"}},
    {{"show", "anzeigen", "afficher", "mostrar"}},
    {{"hide", "ausblenden", "masquer", "ocultar"}},
    {{"select", "auswählen", "sélectionner", "seleccionar"}},
    {{"calibrate", "kalibrieren", "calibrer", "calibrar"}},
    {{"start", "starten", "démarrer", "iniciar"}},
    {{"stop", "anhalten", "arrêter", "detener"}},
    {{"reset", "zurücksetzen", "réinitialiser", "restablecer"}},
    {{"apply", "anwenden", "appliquer", "aplicar"}},
    {{"copy", "kopieren", "copier", "copiar"}},
    {{"insert", "einfügen", "insérer", "insertar"}},
    {{"remove", "entfernen", "retirer", "quitar"}},
    {{"connect", "verbinden", "connecter", "conectar"}},
    {{"measure", "messen", "mesurer", "medir"}},
    {{"rotate", "drehen", "pivoter", "girar"}},
    {{"move", "verschieben", "déplacer", "mover"}},
    {{"edit", "bearbeiten", "modifier", "editar"}},
    {{"create", "erstellen", "créer", "crear"}},
    {{"update", "aktualisieren", "mettre à jour", "actualizar"}},
    {{"find", "suchen", "rechercher", "buscar"}},
};

const Word gerunds[] = {
    {{"loading", "lade", "chargement de", "cargando"}},
    {{"saving", "speichere", "enregistrement de", "guardando"}},
    {{"processing", "verarbeite", "traitement de", "procesando"}},
    {{"connecting to", "verbinde mit", "connexion à", "conectando a"}},
    {{"searching", "durchsuche", "recherche de", "buscando"}},
};

const Word nouns[] = {
    {{"file", "Datei", "fichier", "archivo"}},
    {{"scene", "Szene", "scène", "escena"}},
    {{"camera", "Kamera", "caméra", "cámara"}},
    {{"image", "Bild", "image", "imagen"}},
    {{"project", "Projekt", "projet", "proyecto"}},
    {{"settings", "Einstellungen", "paramètres", "ajustes"}},
    {{"window", "Fenster", "fenêtre", "ventana"}},
    {{"layer", "Ebene", "calque", "capa"}},
    {{"point", "Punkt", "point", "punto"}},
    {{"point cloud", "Punktwolke", "nuage de points", "nube de puntos"}},
    {{"robot", "Roboter", "robot", "robot"}},
    {{"tool", "Werkzeug", "outil", "herramienta"}},
    {{"frame", "Rahmen", "cadre", "marco"}},
    {{"marker", "Markierung", "marqueur", "marcador"}},
    {{"grid", "Raster", "grille", "cuadrícula"}},
    {{"view", "Ansicht", "vue", "vista"}},
    {{"sensor", "Sensor", "capteur", "sensor"}},
    {{"device", "Gerät", "appareil", "dispositivo"}},
    {{"channel", "Kanal", "canal", "canal"}},
    {{"template", "Vorlage", "modèle", "plantilla"}},
    {{"model", "Modell", "modèle", "modelo"}},
    {{"result", "Ergebnis", "résultat", "resultado"}},
    {{"value", "Wert", "valeur", "valor"}},
    {{"object", "Objekt", "objet", "objeto"}},
    {{"pattern", "Muster", "motif", "patrón"}},
    {{"path", "Pfad", "chemin", "ruta"}},
    {{"axis", "Achse", "axe", "eje"}},
    {{"region", "Bereich", "région", "región"}},
    {{"filter", "Filter", "filtre", "filtro"}},
    {{"selection", "Auswahl", "sélection", "selección"}},
    {{"measurement", "Messung", "mesure", "medición"}},
    {{"transformation", "Transformation", "transformation", "transformación"}},
};

const Word adjectives[] = {
    {{"current", "aktuelle", "actuel", "actual"}},
    {{"new", "neue", "nouveau", "nuevo"}},
    {{"selected", "ausgewählte", "sélectionné", "seleccionado"}},
    {{"all", "alle", "tous les", "todos los"}},
    {{"recent", "letzte", "récent", "reciente"}},
    {{"default", "Standard-", "par défaut", "predeterminado"}},
    {{"active", "aktive", "actif", "activo"}},
    {{"visible", "sichtbare", "visible", "visible"}},
    {{"previous", "vorherige", "précédent", "anterior"}},
    {{"next", "nächste", "suivant", "siguiente"}},
    {{"first", "erste", "premier", "primero"}},
    {{"last", "letzte", "dernier", "último"}},
    {{"missing", "fehlende", "manquant", "faltante"}},
    {{"invalid", "ungültige", "invalide", "inválido"}},
    {{"empty", "leere", "vide", "vacío"}},
    {{"hidden", "verborgene", "masqué", "oculto"}},
};

const Word prepositions[] = {
    {{"of", "von", "de", "de"}},
    {{"to", "nach", "vers", "a"}},
    {{"from", "aus", "depuis", "desde"}},
    {{"in", "in", "dans", "en"}},
    {{"with", "mit", "avec", "con"}},
    {{"for", "für", "pour", "para"}},
    {{"on", "auf", "sur", "en"}},
    {{"as", "als", "comme", "como"}},
};

const Word wordThe = {{"the", "die", "le", "el"}};
const Word wordIs = {{"is", "ist", "est", "es"}};
const Word wordNot = {{"not", "nicht", "pas", "no"}};
const Word wordCouldNot = {{"could not", "konnte nicht", "impossible de", "no se pudo"}};
const Word wordAnd = {{"and", "und", "et", "y"}};
const Word wordPleaseWait = {{"please wait", "bitte warten", "veuillez patienter", "espere"}};

struct Token
{
    enum Kind { Text, Arg, Comma, Period, Ellipsis, Colon };
    Kind kind;
    const Word* word;
};

class PhraseGenerator
{
public:
    explicit PhraseGenerator(unsigned seed)
        : m_random(seed)
    {
    }

    // A text of one to four clauses; as a menu entry, a label or a message.
    std::vector<Token> phrase()
    {
        std::vector<Token> tokens;
        const int roll = uniform(0, 99);
        const int clauses = roll < 60 ? 1 : roll < 88 ? 2 : roll < 97 ? 3 : 4;
        for (int c = 0; c < clauses; ++c) {
            if (c > 0) {
                const int join = uniform(0, 2);
                if (join == 0)
                    tokens.push_back({Token::Comma, nullptr});
                else if (join == 1)
                    tokens.push_back({Token::Text, &wordAnd});
                else
                    tokens.push_back({Token::Period, nullptr});
            }
            clause(tokens);
        }
        const int end = uniform(0, 3);
        if (end == 0)
            tokens.push_back({Token::Ellipsis, nullptr});
        else if (end == 1)
            tokens.push_back({Token::Period, nullptr});
        return tokens;
    }

    // Puts one to three arguments into \a tokens: after nouns, and at the end as "...: []".
    void addArgs(std::vector<Token>& tokens)
    {
        std::vector<size_t> afterNoun;
        for (size_t i = 0; i < tokens.size(); ++i) {
            if (tokens[i].kind == Token::Text && isNoun(tokens[i].word))
                afterNoun.push_back(i + 1);
        }
        const int wanted = uniform(1, 3);
        std::vector<size_t> chosen;
        for (int n = 0; n < wanted && !afterNoun.empty(); ++n) {
            const size_t pick = static_cast<size_t>(uniform(0, static_cast<int>(afterNoun.size()) - 1));
            chosen.push_back(afterNoun[pick]);
            afterNoun.erase(afterNoun.begin() + static_cast<std::ptrdiff_t>(pick));
        }
        if (chosen.empty() || (chosen.size() < 3 && uniform(0, 3) == 0)) {
            // A trailing argument comes after a colon, before any closing punctuation.
            if (!tokens.empty() && tokens.back().kind != Token::Text)
                tokens.pop_back();
            tokens.push_back({Token::Colon, nullptr});
            tokens.push_back({Token::Arg, nullptr});
        }
        std::sort(chosen.rbegin(), chosen.rend());
        for (const size_t at : chosen)
            tokens.insert(tokens.begin() + static_cast<std::ptrdiff_t>(at), Token{Token::Arg, nullptr});
    }

    // A run-time value as applications fill it in: a file, a count, a path, a length, a device.
    QString argValue()
    {
        switch (uniform(0, 4)) {
        case 0:
            return QStringLiteral("scene_%1.xml").arg(uniform(1, 999));
        case 1:
            return QString::number(uniform(0, 5000));
        case 2:
            return QStringLiteral("/data/run_%1/image_%2.png").arg(uniform(1, 99)).arg(uniform(1, 9999));
        case 3:
            return QStringLiteral("%1.%2 mm").arg(uniform(0, 999)).arg(uniform(0, 9));
        default:
            return QStringLiteral("Camera %1").arg(uniform(1, 8));
        }
    }

private:
    template <size_t N>
    const Word* pick(const Word (&list)[N])
    {
        return &list[uniform(0, static_cast<int>(N) - 1)];
    }

    static bool isNoun(const Word* word)
    {
        return word >= std::begin(nouns) && word < std::end(nouns);
    }

    void text(std::vector<Token>& tokens, const Word* word) { tokens.push_back({Token::Text, word}); }

    void nounGroup(std::vector<Token>& tokens, bool article)
    {
        if (article)
            text(tokens, &wordThe);
        if (uniform(0, 1) == 0)
            text(tokens, pick(adjectives));
        text(tokens, pick(nouns));
    }

    void clause(std::vector<Token>& tokens)
    {
        switch (uniform(0, 9)) {
        case 0:
        case 1:
        case 2: // "Open the current scene"
            text(tokens, pick(verbs));
            nounGroup(tokens, uniform(0, 1) == 0);
            break;
        case 3:
        case 4: // "Recent files"
            nounGroup(tokens, false);
            break;
        case 5: // "Could not load the camera"
            text(tokens, &wordCouldNot);
            text(tokens, pick(verbs));
            nounGroup(tokens, true);
            break;
        case 6: // "The selected layer is not visible"
            nounGroup(tokens, true);
            text(tokens, &wordIs);
            if (uniform(0, 1) == 0)
                text(tokens, &wordNot);
            text(tokens, pick(adjectives));
            break;
        case 7: // "Move the marker to the next frame"
            text(tokens, pick(verbs));
            nounGroup(tokens, true);
            text(tokens, pick(prepositions));
            nounGroup(tokens, true);
            break;
        case 8: // "Loading the point cloud of the project"
            text(tokens, pick(gerunds));
            nounGroup(tokens, uniform(0, 1) == 0);
            if (uniform(0, 1) == 0) {
                text(tokens, pick(prepositions));
                nounGroup(tokens, true);
            }
            break;
        default:
            text(tokens, &wordPleaseWait);
            break;
        }
    }

    int uniform(int low, int high) { return std::uniform_int_distribution<int>(low, high)(m_random); }

    std::mt19937 m_random;
};

// How the arguments of a text are written out.
enum class ArgStyle {
    Brackets, ///< "[]", the keys and translations of the container
    Percent,  ///< "%1", "%2", ... the Qt Linguist form
    Filled,   ///< "[value]", the text as the application passes it to Container::tr
    Values,   ///< the run-time values, the translated result
};

QString render(const std::vector<Token>& tokens, Language lang, ArgStyle style,
               const QStringList& values = QStringList())
{
    QString out;
    bool capitalise = true;
    int arg = 0;
    const auto word = [&](const QString& text) {
        if (!out.isEmpty())
            out += QLatin1Char(' ');
        if (capitalise && !text.isEmpty()) {
            out += text.at(0).toUpper();
            out += text.midRef(1);
        } else {
            out += text;
        }
        capitalise = false;
    };
    for (const Token& token : tokens) {
        switch (token.kind) {
        case Token::Text:
            word(QString::fromUtf8(token.word->text[lang]));
            break;
        case Token::Arg:
            if (style == ArgStyle::Brackets)
                word(QStringLiteral("[]"));
            else if (style == ArgStyle::Percent)
                word(QLatin1Char('%') + QString::number(arg + 1));
            else if (style == ArgStyle::Filled)
                word(QLatin1Char('[') + values.at(arg) + QLatin1Char(']'));
            else
                word(values.at(arg));
            ++arg;
            capitalise = false;
            break;
        case Token::Comma:
            out += QLatin1Char(',');
            break;
        case Token::Period:
            out += QLatin1Char('.');
            capitalise = true;
            break;
        case Token::Ellipsis:
            out += QLatin1String("...");
            break;
        case Token::Colon:
            out += QLatin1Char(':');
            break;
        }
    }
    return out;
}

struct Entry
{
    QString key;                           // container key, arguments as "[]"
    QString translations[LanguageCount];   // container translations, arguments as "[]"
    QString qtSource;                      // Qt Linguist source, arguments as "%1"
    QString qtGerman;                      // Qt Linguist German translation
    QStringList values;                    // run-time arguments (empty for plain texts)
    QString runtimeText;                   // the text as the application passes it to tr()
    QString expectedGerman;                // what both lookups must return
};

std::vector<Entry> makeEntries()
{
    PhraseGenerator generator(20240611u);
    std::vector<Entry> entries;
    QSet<QString> keys;
    for (int withArgs = 0; withArgs < 2; ++withArgs) {
        int made = 0;
        while (made < textsPerKind) {
            std::vector<Token> tokens = generator.phrase();
            if (withArgs)
                generator.addArgs(tokens);
            Entry entry;
            entry.key = render(tokens, En, ArgStyle::Brackets);
            if (keys.contains(entry.key))
                continue;
            keys.insert(entry.key);
            for (int lang = 0; lang < LanguageCount; ++lang)
                entry.translations[lang] = render(tokens, Language(lang), ArgStyle::Brackets);
            entry.qtSource = render(tokens, En, ArgStyle::Percent);
            entry.qtGerman = render(tokens, De, ArgStyle::Percent);
            for (const Token& token : tokens) {
                if (token.kind == Token::Arg)
                    entry.values.append(generator.argValue());
            }
            entry.runtimeText = render(tokens, En, ArgStyle::Filled, entry.values);
            entry.expectedGerman = render(tokens, De, ArgStyle::Values, entry.values);
            entries.push_back(entry);
            ++made;
        }
    }
    return entries;
}

// ---------------------------------------------------------------------------------------------
// Files
// ---------------------------------------------------------------------------------------------

bool writeFile(const QString& path, const std::function<void(QXmlStreamWriter&)>& body)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        return false;
    QXmlStreamWriter xml(&file);
    xml.setAutoFormatting(true);
    xml.writeStartDocument();
    body(xml);
    xml.writeEndDocument();
    return !xml.hasError();
}

bool writeLanguageList(const QString& path)
{
    return writeFile(path, [](QXmlStreamWriter& xml) {
        xml.writeStartElement(QStringLiteral("translations"));
        const char* const fullNames[LanguageCount] = {"English", "Deutsch", "Français", "Español"};
        for (const Language lang : {De, Fr, Es, En}) {
            xml.writeEmptyElement(QStringLiteral("language"));
            xml.writeAttribute(QStringLiteral("fullName"), QString::fromUtf8(fullNames[lang]));
            xml.writeAttribute(QStringLiteral("shortName"), QLatin1String(languageNames[lang]));
        }
        xml.writeEndElement();
    });
}

bool writeTranslationFile(const QString& path, const std::vector<Entry>& entries)
{
    return writeFile(path, [&](QXmlStreamWriter& xml) {
        xml.writeStartElement(QStringLiteral("document"));
        xml.writeStartElement(QStringLiteral("translations"));
        for (const Entry& entry : entries) {
            xml.writeStartElement(QStringLiteral("item"));
            xml.writeAttribute(QStringLiteral("key"), entry.key);
            for (const Language lang : {De, En, Es, Fr}) {
                xml.writeStartElement(QStringLiteral("translation"));
                xml.writeAttribute(QStringLiteral("lang"), QLatin1String(languageNames[lang]));
                xml.writeCharacters(entry.translations[lang]);
                xml.writeEndElement();
            }
            xml.writeEndElement();
        }
        xml.writeEndElement();
        xml.writeEndElement();
    });
}

bool writeLinguistSource(const QString& path, const std::vector<Entry>& entries)
{
    return writeFile(path, [&](QXmlStreamWriter& xml) {
        xml.writeDTD(QStringLiteral("<!DOCTYPE TS>"));
        xml.writeStartElement(QStringLiteral("TS"));
        xml.writeAttribute(QStringLiteral("version"), QStringLiteral("2.1"));
        xml.writeAttribute(QStringLiteral("language"), QStringLiteral("de_DE"));
        xml.writeStartElement(QStringLiteral("context"));
        xml.writeTextElement(QStringLiteral("name"), QLatin1String(qtContext));
        for (const Entry& entry : entries) {
            xml.writeStartElement(QStringLiteral("message"));
            xml.writeTextElement(QStringLiteral("source"), entry.qtSource);
            xml.writeTextElement(QStringLiteral("translation"), entry.qtGerman);
            xml.writeEndElement();
        }
        xml.writeEndElement();
        xml.writeEndElement();
    });
}

bool runLrelease(const QString& tsPath, const QString& qmPath)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(QStringLiteral(KES_BENCH_LRELEASE),
                  {QStringLiteral("-silent"), tsPath, QStringLiteral("-qm"), qmPath});
    if (!process.waitForFinished(120000) || process.exitStatus() != QProcess::NormalExit
        || process.exitCode() != 0) {
        std::fprintf(stderr, "lrelease failed: %s\n%s\n", qPrintable(process.errorString()),
                     process.readAll().constData());
        return false;
    }
    return true;
}

// ---------------------------------------------------------------------------------------------
// Fixture
// ---------------------------------------------------------------------------------------------

struct Fixture
{
    ContainerPtr container;
    QTranslator translator;
    QString translationFile;
    qint64 translationFileSize = 0;

    // Container inputs: QStrings made apart from the container's keys, as an application's own
    // literals are, so that no comparison is short-cut by shared string data.
    QVector<QString> plainTexts;
    QVector<QString> argTexts;
    // QTranslator inputs: UTF-8 literals as applications pass them; argument texts in "%1" form.
    std::vector<QByteArray> plainUtf8;
    std::vector<QByteArray> argUtf8;
    std::vector<const char*> plainSources;
    std::vector<const char*> argSources;
    QVector<QStringList> argValues;

    QVector<QString> expectedPlain;
    QVector<QString> expectedArgs;
};

Fixture* g_fixture = nullptr;

QString qtWithArgs(const QTranslator& translator, const char* source, const QStringList& values)
{
    QString result = translator.translate(qtContext, source);
    for (const QString& value : values)
        result = result.arg(value);
    return result;
}

// Both lookups must give the expected German texts before any of them is timed.
bool verify(const Fixture& f)
{
    const Container& container = *f.container;
    for (int i = 0; i < textsPerKind; ++i) {
        const QString plain = container.tr(f.plainTexts.at(i));
        const QString args = container.tr(f.argTexts.at(i));
        const QString qtPlain = f.translator.translate(qtContext, f.plainSources[size_t(i)]);
        const QString qtArgs = qtWithArgs(f.translator, f.argSources[size_t(i)], f.argValues.at(i));
        const struct
        {
            const char* what;
            const QString& got;
            const QString& expected;
            const QString& input;
        } checks[] = {
            {"Container::tr (plain)", plain, f.expectedPlain.at(i), f.plainTexts.at(i)},
            {"Container::tr (arguments)", args, f.expectedArgs.at(i), f.argTexts.at(i)},
            {"QTranslator (plain)", qtPlain, f.expectedPlain.at(i), f.plainTexts.at(i)},
            {"QTranslator (arguments)", qtArgs, f.expectedArgs.at(i), f.argTexts.at(i)},
        };
        for (const auto& check : checks) {
            if (check.got != check.expected) {
                std::fprintf(stderr, "%s of \"%s\" gave \"%s\", expected \"%s\"\n", check.what,
                             qPrintable(check.input), qPrintable(check.got),
                             qPrintable(check.expected));
                return false;
            }
        }
    }
    return true;
}

bool setUp(Fixture& f, const QString& dir)
{
    const std::vector<Entry> entries = makeEntries();

    const QString languageList = dir + QStringLiteral("/languages.xml");
    f.translationFile = dir + QStringLiteral("/texts.xml");
    const QString tsFile = dir + QStringLiteral("/texts_de.ts");
    const QString qmFile = dir + QStringLiteral("/texts_de.qm");
    if (!writeLanguageList(languageList) || !writeTranslationFile(f.translationFile, entries)
        || !writeLinguistSource(tsFile, entries)) {
        std::fprintf(stderr, "cannot write the files in %s\n", qPrintable(dir));
        return false;
    }
    f.translationFileSize = QFileInfo(f.translationFile).size();
    if (!runLrelease(tsFile, qmFile))
        return false;
    if (!f.translator.load(qmFile)) {
        std::fprintf(stderr, "QTranslator cannot load %s\n", qPrintable(qmFile));
        return false;
    }

    Manager& manager = Manager::singleton();
    if (!manager.load(QFileInfo(languageList))) {
        std::fprintf(stderr, "the language manager cannot load %s\n", qPrintable(languageList));
        return false;
    }
    manager.setLanguage(QStringLiteral("de"));
    if (manager.currentLanguageString() != QLatin1String("de")) {
        std::fprintf(stderr, "the current language is \"%s\", not \"de\"\n",
                     qPrintable(manager.currentLanguageString()));
        return false;
    }

    // The container under test is read from the very file that the load benchmark reads.
    Loader loader;
    if (!loader.load(f.translationFile) || !loader.lastError().isEmpty()
        || loader.container()->keys().size() != int(entries.size())) {
        std::fprintf(stderr, "loading %s failed: \"%s\", %d keys\n", qPrintable(f.translationFile),
                     qPrintable(loader.lastError()), int(loader.container()->keys().size()));
        return false;
    }
    f.container = loader.container();

    for (const Entry& entry : entries) {
        // Deep copies through UTF-8: the inputs share no data with the loaded keys.
        const QByteArray runtimeUtf8 = entry.runtimeText.toUtf8();
        if (entry.values.isEmpty()) {
            f.plainTexts.append(QString::fromUtf8(runtimeUtf8));
            f.plainUtf8.push_back(entry.qtSource.toUtf8());
            f.expectedPlain.append(entry.expectedGerman);
        } else {
            f.argTexts.append(QString::fromUtf8(runtimeUtf8));
            f.argUtf8.push_back(entry.qtSource.toUtf8());
            f.argValues.append(entry.values);
            f.expectedArgs.append(entry.expectedGerman);
        }
    }
    for (const QByteArray& bytes : f.plainUtf8)
        f.plainSources.push_back(bytes.constData());
    for (const QByteArray& bytes : f.argUtf8)
        f.argSources.push_back(bytes.constData());

    if (!verify(f))
        return false;

    qint64 keyLength = 0;
    for (const Entry& entry : entries)
        keyLength += entry.key.size();
    std::printf("%d texts (%d with 1-3 arguments), mean key length %.1f characters, "
                "translation file %lld KiB, current language \"%s\"\n",
                int(entries.size()), textsPerKind, double(keyLength) / double(entries.size()),
                static_cast<long long>(f.translationFileSize / 1024),
                qPrintable(manager.currentLanguageString()));
    return true;
}

// ---------------------------------------------------------------------------------------------
// Benchmarks
// ---------------------------------------------------------------------------------------------

const char* const nameContainerPlain = "Container::tr/plain";
const char* const nameQtPlain = "QTranslator::translate/plain";
const char* const nameContainerArgs = "Container::tr/args";
const char* const nameQtArgs = "QTranslator::translate+arg/args";
const char* const nameLoader = "Loader::load/10000_items";

void containerLookup(benchmark::State& state, const QVector<QString>& texts)
{
    const Container& container = *g_fixture->container;
    int i = 0;
    for (auto _ : state) {
        QString result = container.tr(texts.at(i));
        benchmark::DoNotOptimize(result);
        if (++i == texts.size())
            i = 0;
    }
    state.SetItemsProcessed(state.iterations());
}

void BM_ContainerPlain(benchmark::State& state)
{
    containerLookup(state, g_fixture->plainTexts);
}

void BM_ContainerArgs(benchmark::State& state)
{
    containerLookup(state, g_fixture->argTexts);
}

void BM_QtPlain(benchmark::State& state)
{
    const QTranslator& translator = g_fixture->translator;
    const std::vector<const char*>& sources = g_fixture->plainSources;
    size_t i = 0;
    for (auto _ : state) {
        QString result = translator.translate(qtContext, sources[i]);
        benchmark::DoNotOptimize(result);
        if (++i == sources.size())
            i = 0;
    }
    state.SetItemsProcessed(state.iterations());
}

void BM_QtArgs(benchmark::State& state)
{
    const QTranslator& translator = g_fixture->translator;
    const std::vector<const char*>& sources = g_fixture->argSources;
    const QVector<QStringList>& values = g_fixture->argValues;
    size_t i = 0;
    for (auto _ : state) {
        // tr("Loading %1 of %2").arg(file).arg(count), as a Qt application writes it.
        QString result = translator.translate(qtContext, sources[i]);
        for (const QString& value : values.at(int(i)))
            result = result.arg(value);
        benchmark::DoNotOptimize(result);
        if (++i == sources.size())
            i = 0;
    }
    state.SetItemsProcessed(state.iterations());
}

void BM_LoaderLoad(benchmark::State& state)
{
    const int expected = g_fixture->plainTexts.size() + g_fixture->argTexts.size();
    for (auto _ : state) {
        auto loader = std::make_unique<Loader>();
        const bool ok = loader->load(g_fixture->translationFile);
        // Checking the result and freeing the container are not part of the load.
        state.PauseTiming();
        if (!ok || loader->container()->keys().size() != expected) {
            state.SkipWithError("the translation file did not load completely");
            break;
        }
        loader.reset();
        state.ResumeTiming();
    }
    state.SetItemsProcessed(state.iterations() * expected);
    state.SetBytesProcessed(state.iterations() * g_fixture->translationFileSize);
}

// ---------------------------------------------------------------------------------------------
// Summary
// ---------------------------------------------------------------------------------------------

void printSummary(const kes::bench::SummaryReporter& reporter)
{
    const double containerPlain = reporter.nanoseconds(nameContainerPlain);
    const double containerArgs = reporter.nanoseconds(nameContainerArgs);
    const double qtPlain = reporter.nanoseconds(nameQtPlain);
    const double qtArgs = reporter.nanoseconds(nameQtArgs);
    const double load = reporter.nanoseconds(nameLoader);

    std::printf("\nSummary (CPU time per lookup, this run)\n");
    const auto line = [](const char* label, double ns) {
        if (ns >= 0)
            std::printf("  %-52s %8.1f ns\n", label, ns);
    };
    line("Container::tr, plain texts", containerPlain);
    line("QTranslator::translate, plain texts", qtPlain);
    line("Container::tr, texts with arguments", containerArgs);
    line("QTranslator::translate + QString::arg, with arguments", qtArgs);
    if (load >= 0)
        std::printf("  %-52s %8.2f ms\n", "Loader::load, 10,000 items x 4 languages", load / 1e6);
    using kes::bench::Goal;
    using kes::bench::printRatio;
    printRatio("Container::tr(plain) / QTranslator(plain)", containerPlain, qtPlain, Goal::AtMost, 1.0);
    printRatio("Container::tr(args)  / QTranslator(plain)", containerArgs, qtPlain, Goal::AtMost, 2.0);
    printRatio("Container::tr(args)  / QTranslator+arg(args)", containerArgs, qtArgs);
}

} // namespace

int main(int argc, char** argv)
{
    // The language manager stores its choice in QSettings; the session's folders keep it private.
    kes::bench::Session session(argc, argv);
    if (!session.isReady())
        return 1;
    QCoreApplication::setApplicationName(QStringLiteral("bench_translation"));

    Fixture fixture;
    if (!setUp(fixture, session.scratchPath()))
        return 1;
    g_fixture = &fixture;

    benchmark::RegisterBenchmark(nameContainerPlain, BM_ContainerPlain);
    benchmark::RegisterBenchmark(nameQtPlain, BM_QtPlain);
    benchmark::RegisterBenchmark(nameContainerArgs, BM_ContainerArgs);
    benchmark::RegisterBenchmark(nameQtArgs, BM_QtArgs);
    benchmark::RegisterBenchmark(nameLoader, BM_LoaderLoad)->Unit(benchmark::kMillisecond);

    kes::bench::SummaryReporter reporter(session.options());
    benchmark::RunSpecifiedBenchmarks(&reporter);
    printSummary(reporter);
    g_fixture = nullptr;
    return 0;
}
