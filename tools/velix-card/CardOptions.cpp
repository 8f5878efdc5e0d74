#include "tools/velix-card/CardOptions.h"

#include <QCommandLineParser>

namespace VELIX {

namespace {

constexpr int kWrongUsage = 2;

QCommandLineOption option(const char* name, const char* description, const char* value)
{
    return {QString::fromLatin1(name), QString::fromLatin1(description),
            QString::fromLatin1(value)};
}

void describe(QCommandLineParser& parser)
{
    parser.setApplicationDescription(
        QStringLiteral("Reads the data card of an engine monitoring unit.\n\n"
                       "  info  prints what the card, a cycle or some files hold as JSON\n"
                       "  csv   prints the decoded parameters as a table"));
    parser.addPositionalArgument(QStringLiteral("command"), QStringLiteral("info or csv"));
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
    parser.addOption(option("select", "csv: only these parameters; repeatable.", "DEVICE/NAME"));
    parser.addOption({QStringLiteral("aligned"),
                      QStringLiteral("csv: every column in every row, empty without a sample.")});
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
        if (options.command == CardOptions::Command::Csv && !options.hasSelection()) {
            complain(QStringLiteral("A table needs --cycle or --file."));
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
