#include "tools/velix-card/CardOptions.h"

#include <QCommandLineParser>
#include <QRegularExpression>

#include <limits>
#include <tuple>

namespace VELIX {

namespace {

constexpr int kWrongUsage = 2;

QCommandLineOption option(const char* name, const char* description, const char* value)
{
    return {QString::fromLatin1(name), QString::fromLatin1(description),
            QString::fromLatin1(value)};
}

void describeKml(QCommandLineParser& parser)
{
    for (const auto& [name, description, value] : {
             std::tuple("time-step", "kml: seconds from one path point to the next (1).", "S"),
             std::tuple("line-width", "kml: width of the path in pixels (1).", "N"),
             std::tuple("line-color", "kml: colour of the path (ff0000).", "RRGGBB"),
             std::tuple("line-alpha", "kml: opacity of the path, 0 to 255 (255).", "N"),
             std::tuple("polygon", "kml: on (default) or off: a curtain to the ground.", "SWITCH"),
             std::tuple("polygon-color", "kml: colour of the curtain (0000ff).", "RRGGBB"),
             std::tuple("polygon-alpha", "kml: opacity of the curtain, 0 to 255 (100).", "N"),
             std::tuple("placemarks", "kml: on (default) or off: placemarks with values.",
                        "SWITCH"),
             std::tuple("placemark-interval", "kml: one placemark every N path steps (10).", "N"),
             std::tuple("placemark-color", "kml: colour of these placemarks (ffcc00).", "RRGGBB"),
             std::tuple("events", "kml: on (default) or off: placemarks of events.", "SWITCH"),
             std::tuple("limits", "kml: on (default) or off: limit exceedances.", "SWITCH"),
             std::tuple("warnings", "kml: on (default) or off: warning lamps.", "SWITCH"),
             std::tuple("event-color", "kml: colour of event placemarks (ff0000).", "RRGGBB"),
         }) {
        parser.addOption(option(name, description, value));
    }
    parser.addOption({QStringLiteral("standard"),
                      QStringLiteral("kml: keep to the schema of KML 2.2. An --output that ends in "
                                     ".kmz is zipped, with or without.")});
}

void describe(QCommandLineParser& parser)
{
    parser.setApplicationDescription(
        QStringLiteral("Reads the data card of an engine monitoring unit.\n\n"
                       "  info  prints what the card, a cycle or some files hold as JSON\n"
                       "  csv   prints the decoded parameters as a table\n"
                       "  kml   writes the flight path for virtual globes"));
    parser.addPositionalArgument(QStringLiteral("command"), QStringLiteral("info, csv or kml"));
    parser.addPositionalArgument(QStringLiteral("CARD"), QStringLiteral("folder of the card"));
    parser.addOption(option("profile", "Parameter profile (required).", "FILE"));
    parser.addOption(option("variant", "Variant of the profile.", "NAME"));
    parser.addOption(option("unit", "metric (default) or imperial.", "SYSTEM"));
    parser.addOption(option("cycle", "Power cycle to load.", "N"));
    parser.addOption(option("flight", "Flight of the cycle, 0 for its first.", "I"));
    parser.addOption(option("file", "Record file to load; repeatable.", "NAME"));
    parser.addOption(option("output", "File to write instead of standard output.", "FILE"));
    parser.addOption(
        option("time", "info: also the values at this time in seconds; repeatable.", "T"));
    parser.addOption(option("delimiter", "csv: semicolon (default), comma or tab.", "KIND"));
    parser.addOption(option("resolution", "csv: 100 (default) or 10 ms per row.", "MS"));
    parser.addOption(option("select",
                            "csv: only these parameters; kml: placemarks with their values; "
                            "repeatable.",
                            "DEVICE/NAME"));
    parser.addOption({QStringLiteral("aligned"),
                      QStringLiteral("csv: every column in every row, empty without a sample.")});
    describeKml(parser);
    parser.addHelpOption();
}

/// Turns parsed arguments into options, keeping the first complaint.
class Reader
{
public:
    explicit Reader(const QCommandLineParser& parser) : mParser(parser) {}

    bool read(CardOptions& options)
    {
        readCommand(options);
        options.profile = text("profile");
        options.variant = text("variant");
        options.output = text("output");
        options.files = mParser.values(QStringLiteral("file"));
        options.selected = mParser.values(QStringLiteral("select"));
        options.unit = choice<EUnit>("unit", {{"metric", eUnitMetric}, {"imperial", eUnitImperial}},
                                     eUnitMetric);
        options.csv.delimiter =
            choice<char>("delimiter", {{"semicolon", ';'}, {"comma", ','}, {"tab", '\t'}}, ';');
        options.csv.resolution = choice<int>("resolution", {{"100", 100}, {"10", 10}}, 100);
        options.csv.aligned = mParser.isSet(QStringLiteral("aligned"));
        options.csv.allParameters = options.selected.isEmpty();
        readKml(options.kml);
        options.kml.fileName = options.output.toStdString();
        readSelection(options);
        readTimes(options);
        if (options.profile.isEmpty()) {
            complain(QStringLiteral("A parameter profile is needed: --profile FILE."));
        }
        return mComplaint.isEmpty();
    }
    const QString& complaint() const { return mComplaint; }

private:
    template <class T>
    using Choices = std::vector<std::pair<const char*, T>>;

    void complain(const QString& text)
    {
        if (mComplaint.isEmpty()) {
            mComplaint = text;
        }
    }

    QString text(const char* name) const { return mParser.value(QString::fromLatin1(name)); }
    bool isSet(const char* name) const { return mParser.isSet(QString::fromLatin1(name)); }

    template <class T>
    T choice(const char* name, const Choices<T>& choices, T fallback)
    {
        if (!isSet(name)) {
            return fallback;
        }
        QStringList names;
        for (const auto& [word, value] : choices) {
            if (text(name) == QLatin1String(word)) {
                return value;
            }
            names << QString::fromLatin1(word);
        }
        complain(QStringLiteral("--%1 takes %2.")
                     .arg(QString::fromLatin1(name), names.join(QStringLiteral(" or "))));
        return fallback;
    }

    void readNumber(const char* name, int smallest, int largest, int& number)
    {
        if (!isSet(name)) {
            return;
        }
        bool valid = false;
        number = text(name).toInt(&valid);
        if (valid && number >= smallest && number <= largest) {
            return;
        }
        QString range = QStringLiteral("from %1").arg(smallest);
        if (largest != std::numeric_limits<int>::max()) {
            range += QStringLiteral(" to %1").arg(largest);
        }
        complain(
            QStringLiteral("--%1 takes a whole number %2.").arg(QString::fromLatin1(name), range));
    }

    void readColor(const char* name, std::string& color)
    {
        static const QRegularExpression sixDigits(QStringLiteral("\\A[0-9a-fA-F]{6}\\z"));
        if (!isSet(name)) {
            return;
        }
        color = text(name).toStdString();
        if (!sixDigits.match(text(name)).hasMatch()) {
            complain(QStringLiteral("--%1 takes six hexadecimal digits RRGGBB.")
                         .arg(QString::fromLatin1(name)));
        }
    }

    void readSwitch(const char* name, bool& on)
    {
        on = choice<bool>(name, {{"on", true}, {"off", false}}, on);
    }

    void readKml(KmlExportOptions& kml)
    {
        constexpr int kAnyNumber = std::numeric_limits<int>::max();
        constexpr int kLargestAlpha = 255;
        readNumber("time-step", 1, kAnyNumber, kml.timeStep);
        readNumber("line-width", 1, kAnyNumber, kml.lineWidth);
        readColor("line-color", kml.lineColor);
        readNumber("line-alpha", 0, kLargestAlpha, kml.lineAlpha);
        readSwitch("polygon", kml.polygonOn);
        readColor("polygon-color", kml.polygonColor);
        readNumber("polygon-alpha", 0, kLargestAlpha, kml.polygonAlpha);
        readSwitch("placemarks", kml.placeMarkOn);
        readNumber("placemark-interval", 1, kAnyNumber, kml.placeMarkInterval);
        readColor("placemark-color", kml.placeMarkColor);
        readSwitch("events", kml.errorMarkOn);
        readSwitch("limits", kml.showLimit);
        readSwitch("warnings", kml.showWarning);
        readColor("event-color", kml.errorMarkColor);
        kml.standard = isSet("standard");
    }

    void readCommand(CardOptions& options)
    {
        const QStringList words = mParser.positionalArguments();
        if (words.size() != 2) {
            complain(QStringLiteral("A command and a card folder are needed."));
            return;
        }
        options.card = words[1];
        if (words[0] == QLatin1String("csv")) {
            options.command = CardOptions::Command::Csv;
        } else if (words[0] == QLatin1String("kml")) {
            options.command = CardOptions::Command::Kml;
        } else if (words[0] != QLatin1String("info")) {
            complain(QStringLiteral("There is no command %1.").arg(words[0]));
        }
    }

    void readSelection(CardOptions& options)
    {
        bool valid = true;
        if (isSet("cycle")) {
            options.cycle = text("cycle").toUInt(&valid);
            if (!valid) {
                complain(QStringLiteral("--cycle takes a number."));
            }
        }
        if (isSet("flight")) {
            options.flight = text("flight").toInt(&valid);
            if (!valid || !isSet("cycle")) {
                complain(QStringLiteral("--flight takes a number and needs --cycle."));
            }
        }
        if (isSet("cycle") && isSet("file")) {
            complain(QStringLiteral("--cycle and --file exclude each other."));
        }
        if (options.command != CardOptions::Command::Info && !options.hasSelection()) {
            complain(options.command == CardOptions::Command::Csv
                         ? QStringLiteral("A table needs --cycle or --file.")
                         : QStringLiteral("A flight path needs --cycle or --file."));
        }
    }

    void readTimes(CardOptions& options)
    {
        for (const QString& time : mParser.values(QStringLiteral("time"))) {
            bool valid = false;
            options.times.push_back(time.toDouble(&valid));
            if (!valid) {
                complain(QStringLiteral("--time takes a number of seconds."));
            }
        }
    }

    const QCommandLineParser& mParser;
    QString mComplaint;
};

} // namespace

ParsedOptions parseCardOptions(const QStringList& arguments)
{
    QCommandLineParser parser;
    describe(parser);
    if (!parser.parse(arguments)) {
        return {std::nullopt, parser.errorText() + QLatin1Char('\n'), kWrongUsage};
    }
    if (parser.isSet(QStringLiteral("help"))) {
        return {std::nullopt, parser.helpText(), 0};
    }
    CardOptions options;
    Reader reader(parser);
    if (!reader.read(options)) {
        return {std::nullopt, reader.complaint() + QStringLiteral(" See --help.\n"), kWrongUsage};
    }
    return {options, QString(), 0};
}

} // namespace VELIX
