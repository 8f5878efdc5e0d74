#include "core/XmlHandler.h"

#include "core/Diagnostics.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QTextStream>
#include <QXmlStreamReader>

#include <array>
#include <charconv>
#include <optional>

namespace VELIX {

namespace {

constexpr int kIndent = 4;
/// The DOM frees and saves its nodes recursively; profiles nest five levels deep.
constexpr int kDeepestNesting = 200;
/// The DOM takes many times the size of its text. A profile of 5,000 parameters has some 5 MB.
constexpr qint64 kLargestFile = 32 * 1024 * 1024;

QString inFolder(const QString& dir, const QString& file)
{
    return dir + QLatin1Char('/') + file;
}

/// The file's bytes; none if it is no regular file (a pipe would block) or cannot be read.
std::optional<QByteArray> readBytes(const QString& path)
{
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly)) {
        return std::nullopt;
    }
    if (file.size() > kLargestFile) {
        return QByteArray(); // opened, but nothing that can be parsed
    }
    return file.read(kLargestFile);
}

/// Finds out, without recursion, whether the text parses and its tree is safe to build.
bool isReasonable(const QByteArray& text)
{
    QXmlStreamReader reader(text);
    reader.setNamespaceProcessing(false);
    int depth = 0;
    while (!reader.atEnd()) {
        const auto token = reader.readNext();
        if (token == QXmlStreamReader::StartElement && ++depth > kDeepestNesting) {
            return false;
        }
        if (token == QXmlStreamReader::EndElement) {
            --depth;
        }
    }
    return !reader.hasError();
}

bool parse(QDomDocument& doc, const QByteArray& text, bool isChecked = false)
{
    if (isChecked || isReasonable(text)) {
        // The same parser as above: another might see another depth in the same bytes.
        QXmlStreamReader reader(text);
        reader.setNamespaceProcessing(false);
        if (doc.setContent(&reader, false)) {
            return true;
        }
    }
    doc = QDomDocument();
    return false;
}

QByteArray serialized(const QDomDocument& doc)
{
    QByteArray text;
    QTextStream stream(&text, QIODevice::WriteOnly);
    stream.setCodec("UTF-8");
    doc.save(stream, kIndent);
    stream.flush();
    return text;
}

enum class WriteResult { Written, NotOpened, Failed };

WriteResult write(const QDomDocument& doc, const QString& path)
{
    const QFileInfo target(path);
    QSaveFile file(path);
    // Renaming over a device or pipe would replace it.
    if (path.isEmpty() || (target.exists() && !target.isFile()) ||
        !file.open(QIODevice::WriteOnly)) {
        return WriteResult::NotOpened;
    }
    // Written in one piece and flushed here: a stream, and the closing of the file, report success
    // even if only a part went in before the disk was full.
    const QByteArray text = serialized(doc);
    if (file.write(text) != text.size() || !file.flush()) {
        file.cancelWriting();
    }
    return file.commit() ? WriteResult::Written : WriteResult::Failed;
}

/// The text without the characters that no XML file may hold, not even escaped: a control
/// character in a folder's name would make the written file unreadable.
QString writable(const QString& text)
{
    QString result;
    result.reserve(text.size());
    for (int i = 0; i < text.size(); ++i) {
        const QChar c = text.at(i);
        if (c.isHighSurrogate() && i + 1 < text.size() && text.at(i + 1).isLowSurrogate()) {
            result += c;
            result += text.at(++i);
            continue;
        }
        const ushort code = c.unicode();
        const bool blank = code == 0x09 || code == 0x0A || code == 0x0D;
        if (blank || (code >= 0x20 && !c.isSurrogate() && code < 0xFFFE)) {
            result += c;
        }
    }
    return result;
}

/// The value of an attribute that is there and not empty.
std::optional<QString> filledValue(const QDomNamedNodeMap& attrs, const QString& name)
{
    const QString value = attrs.namedItem(name).nodeValue();
    return value.isEmpty() ? std::nullopt : std::optional<QString>(value);
}

} // namespace

QDomElement XmlHandler::xmlCreateElement(QDomDocument& doc, QDomDocument& parent,
                                         const QString& name)
{
    QDomElement element = doc.createElement(name);
    parent.appendChild(element);
    return element;
}

QDomElement XmlHandler::xmlCreateElement(QDomDocument& doc, QDomElement& parent,
                                         const QString& name)
{
    QDomElement element = doc.createElement(name);
    parent.appendChild(element);
    return element;
}

void XmlHandler::xmlCreateTextElement(QDomDocument& doc, QDomElement& parent, const QString& text)
{
    parent.appendChild(doc.createTextNode(writable(text)));
}

void XmlHandler::xmlCreateAttribute(QDomDocument& /*doc*/, QDomElement& e, const QString& name,
                                    const QString& value)
{
    e.setAttribute(name, writable(value));
}

void XmlHandler::xmlCreateAttribute(QDomDocument& doc, QDomElement& e, const QString& name,
                                    const std::string& value)
{
    xmlCreateAttribute(doc, e, name, QString::fromStdString(value));
}

void XmlHandler::xmlCreateAttribute(QDomDocument& doc, QDomElement& e, const QString& name,
                                    int value)
{
    xmlCreateAttribute(doc, e, name, QString::number(value));
}

void XmlHandler::xmlCreateAttribute(QDomDocument& doc, QDomElement& e, const QString& name,
                                    long value)
{
    xmlCreateAttribute(doc, e, name, QString::number(value));
}

void XmlHandler::xmlCreateAttribute(QDomDocument& doc, QDomElement& e, const QString& name,
                                    unsigned long value)
{
    xmlCreateAttribute(doc, e, name, QString::number(static_cast<long>(value)));
}

void XmlHandler::xmlCreateAttribute(QDomDocument& doc, QDomElement& e, const QString& name,
                                    double value)
{
    constexpr int kDecimals = 12;
    std::array<char, 350> text{}; // the largest double has 309 digits before its point
    const auto end = std::to_chars(text.data(), text.data() + text.size(), value,
                                   std::chars_format::fixed, kDecimals);
    xmlCreateAttribute(doc, e, name, std::string(text.data(), end.ptr));
}

void XmlHandler::xmlCreateParameter(QDomElement& e, const QString& name, const std::string& value)
{
    e.setAttribute(name, writable(QString::fromStdString(value)));
}

QString XmlHandler::xmlGetStringAttribute(const QDomNamedNodeMap& attrs, const QString& name,
                                          const QString& def)
{
    const QDomNode attribute = attrs.namedItem(name);
    return attribute.isNull() ? def : attribute.nodeValue();
}

std::string XmlHandler::xmlGetStdStringAttribute(const QDomNamedNodeMap& attrs, const QString& name,
                                                 const std::string& def)
{
    const QDomNode attribute = attrs.namedItem(name);
    return attribute.isNull() ? def : attribute.nodeValue().toStdString();
}

int XmlHandler::xmlGetIntAttribute(const QDomNamedNodeMap& attrs, const QString& name, int def)
{
    const std::optional<QString> value = filledValue(attrs, name);
    return value ? value->toInt(nullptr, 0) : def;
}

double XmlHandler::xmlGetDoubleAttribute(const QDomNamedNodeMap& attrs, const QString& name,
                                         double def)
{
    const std::optional<QString> value = filledValue(attrs, name);
    return value ? value->toDouble() : def;
}

bool XmlHandler::xmlGetBoolAttribute(const QDomNamedNodeMap& attrs, const QString& name, bool def)
{
    const QDomNode attribute = attrs.namedItem(name);
    if (attribute.isNull()) {
        return def;
    }
    const QString value = attribute.nodeValue();
    return value == QLatin1String("true") || value == QLatin1String("1");
}

bool XmlHandler::xmlReadText(QByteArray& text, const QString& file)
{
    const std::optional<QByteArray> bytes = readBytes(file);
    if (!bytes) {
        Diagnostics::print("could not open file <%s>\n", qUtf8Printable(file));
        return false;
    }
    if (!isReasonable(*bytes)) {
        Diagnostics::print("could not set content <%s>\n", qUtf8Printable(file));
        return false;
    }
    text = *bytes;
    return true;
}

bool XmlHandler::xmlReadFile(QDomDocument& doc, const QString& file)
{
    QByteArray text;
    if (!xmlReadText(text, file)) {
        doc = QDomDocument();
        return false;
    }
    if (!parse(doc, text, true)) {
        Diagnostics::print("could not set content <%s>\n", qUtf8Printable(file));
        return false;
    }
    return true;
}

bool XmlHandler::xmlReadFile(QDomDocument& doc, const QString& dir, const QString& file)
{
    return parse(doc, readBytes(inFolder(dir, file)).value_or(QByteArray()));
}

bool XmlHandler::xmlWriteFile(const QDomDocument& doc, const QString& file)
{
    switch (write(doc, file)) {
    case WriteResult::Written:
        return true;
    case WriteResult::NotOpened:
        Diagnostics::print("could not open file for writing !<%s>\n", qUtf8Printable(file));
        return false;
    case WriteResult::Failed:
        Diagnostics::print("could not write file <%s>\n", qUtf8Printable(file));
        return false;
    }
    return false;
}

bool XmlHandler::xmlWriteFile(const QDomDocument& doc, const QString& dir, const QString& file)
{
    return write(doc, inFolder(dir, file)) == WriteResult::Written;
}

} // namespace VELIX
