#include "gui/look/StyleHandler.h"

#include "core/Diagnostics.h"
#include "gui/look/Palette.h"
#include "gui/look/Spacing.h"

#include <QFile>
#include <QHash>
#include <QRegularExpression>

using VELIX::Diagnostics;
using VELIX::Palette;
namespace Spacing = VELIX::Spacing;

namespace {

struct NamedColor
{
    const char* name;
    QColor Palette::*member;
};

constexpr NamedColor NamedColors[] = {
    {"window", &Palette::window},
    {"surface", &Palette::surface},
    {"header", &Palette::header},
    {"line", &Palette::line},
    {"controlLine", &Palette::controlLine},
    {"text", &Palette::text},
    {"mutedText", &Palette::mutedText},
    {"disabledText", &Palette::disabledText},
    {"accent", &Palette::accent},
    {"accentText", &Palette::accentText},
    {"accentSoft", &Palette::accentSoft},
    {"hover", &Palette::hover},
    {"pressed", &Palette::pressed},
    {"handle", &Palette::handle},
    {"progress", &Palette::progress},
    {"healthy", &Palette::healthy},
    {"warning", &Palette::warning},
    {"limit", &Palette::limit},
    {"lcdPanel", &Palette::lcdPanel},
    {"lcdDigits", &Palette::lcdDigits},
    {"tableSelection", &Palette::tableSelection},
    {"tableSelectionText", &Palette::tableSelectionText},
};

struct NamedSize
{
    const char* name;
    int pixels;
};

constexpr NamedSize NamedSizes[] = {
    {"gap", Spacing::kGap},
    {"margin", Spacing::kMargin},
    {"group", Spacing::kGroup},
    {"toolIcon", 24},
    {"tabIcon", 32},
    {"radius", 4},
    {"indicator", 14},
    {"scrollBar", 12},
    {"scrollHandle", 32},
};

QHash<QString, QString> valuesByName(const Palette& palette)
{
    QHash<QString, QString> values;
    for (const NamedColor& color : NamedColors) {
        values.insert(QLatin1String(color.name), (palette.*color.member).name());
    }
    for (const NamedSize& size : NamedSizes) {
        values.insert(QLatin1String(size.name), QStringLiteral("%1px").arg(size.pixels));
    }
    values.insert(QStringLiteral("look"), palette.look == Palette::Look::Dark
                                              ? QStringLiteral("dark")
                                              : QStringLiteral("light"));
    return values;
}

} // namespace

QString StyleHandler::readStyle(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        Diagnostics::print("StyleHandler: cannot read <%s>: %s\n", qUtf8Printable(path),
                           qUtf8Printable(file.errorString()));
        return {};
    }
    return replaceNames(QString::fromUtf8(file.readAll()), Palette::current());
}

QString StyleHandler::replaceNames(const QString& text, const Palette& palette)
{
    static const QRegularExpression name(QStringLiteral("@([A-Za-z][A-Za-z0-9]*)"));
    const QHash<QString, QString> values = valuesByName(palette);

    QString result;
    result.reserve(text.size());
    int copied = 0;
    QRegularExpressionMatchIterator matches = name.globalMatch(text);
    while (matches.hasNext()) {
        const QRegularExpressionMatch match = matches.next();
        const auto value = values.constFind(match.captured(1));
        if (value == values.constEnd()) {
            Diagnostics::print("StyleHandler: unknown name <%s>\n",
                               qUtf8Printable(match.captured(0)));
            continue;
        }
        result += text.midRef(copied, match.capturedStart() - copied);
        result += *value;
        copied = match.capturedEnd();
    }
    result += text.midRef(copied);
    return result;
}
