#include "core/Property.h"

#include "core/Diagnostics.h"
#include "core/XmlHandler.h"

#include <QFileInfo>

#include <array>
#include <charconv>
#include <clocale>
#include <cstdlib>
#include <filesystem>
#include <system_error>

namespace VELIX {

namespace {

/// strtod() with a decimal point, whatever the locale that the toolkit has set.
double toDouble(const std::string& text)
{
    static const locale_t plain = newlocale(LC_ALL_MASK, "C", nullptr);
    return strtod_l(text.c_str(), nullptr, plain);
}

/// Whether a file holds something that the next write would replace.
bool holdsText(const std::string& path)
{
    const QFileInfo file(QString::fromStdString(path));
    return file.isFile() && file.isReadable() && file.isWritable() && file.size() > 0;
}

/// Moves a file aside so that its contents survive being replaced.
void keepAside(const std::string& path)
{
    const std::string kept = path + ".broken";
    std::error_code error;
    std::filesystem::rename(path, kept, error);
    if (!error) {
        Diagnostics::print("unreadable settings kept as <%s>\n", kept.c_str());
    }
}

} // namespace

Property& Property::instance()
{
    static Property property;
    return property;
}

void Property::setConfigFile(const std::string& path)
{
    mConfigFile = path;
}

int Property::readXmlFile()
{
    return readXmlFile(mConfigFile);
}

int Property::readXmlFile(const std::string& path)
{
    XmlHandler xml;
    QDomDocument doc;
    const bool loaded = xml.xmlReadFile(doc, QString::fromStdString(path));
    Diagnostics::print("readXmlFile <%s> %d\n", path.c_str(), loaded ? 1 : 0);
    mBrokenFile = loaded || !holdsText(path) ? std::string() : path;

    for (QDomNode node = doc.documentElement().firstChild(); !node.isNull();
         node = node.nextSibling()) {
        if (node.nodeName() != QLatin1String("Property")) {
            continue;
        }
        const QDomNamedNodeMap attributes = node.attributes();
        const std::string key = xml.xmlGetStdStringAttribute(attributes, QStringLiteral("id"), "");
        mValues[key] = xml.xmlGetStdStringAttribute(attributes, QStringLiteral("value"), "");
    }
    return 1;
}

int Property::writeXmlFile()
{
    return writeXmlFile(mConfigFile);
}

int Property::writeXmlFile(const std::string& path)
{
    XmlHandler xml;
    QDomDocument doc;
    QDomElement root = xml.xmlCreateElement(doc, doc, QStringLiteral("VELIX"));
    for (const auto& [key, value] : mValues) {
        if (value.empty()) {
            continue;
        }
        QDomElement element = xml.xmlCreateElement(doc, root, QStringLiteral("Property"));
        xml.xmlCreateAttribute(doc, element, QStringLiteral("id"), key);
        xml.xmlCreateAttribute(doc, element, QStringLiteral("value"), value);
    }
    if (!mBrokenFile.empty() && path == mBrokenFile) {
        keepAside(path);
        mBrokenFile.clear();
    }
    xml.xmlWriteFile(doc, QString::fromStdString(path)); // reports its own failure
    return 1;
}

std::string Property::getString(const std::string& key, const std::string& def) const
{
    const std::string* value = find(key);
    return value != nullptr ? *value : def;
}

int Property::getInt(const std::string& key, int def) const
{
    const std::string* value = find(key);
    return value != nullptr ? static_cast<int>(std::strtol(value->c_str(), nullptr, 10)) : def;
}

double Property::getDouble(const std::string& key, double def) const
{
    const std::string* value = find(key);
    return value != nullptr ? toDouble(*value) : def;
}

bool Property::getSwitch(const std::string& key, bool def) const
{
    const std::string* value = find(key);
    return value != nullptr ? *value == "true" || *value == "TRUE" || *value == "True" : def;
}

void Property::setString(const std::string& key, const std::string& value)
{
    mValues[key] = value;
}

void Property::setInt(const std::string& key, int value)
{
    mValues[key] = std::to_string(value);
}

void Property::setDouble(const std::string& key, double value)
{
    constexpr int kSignificantDigits = 6;
    std::array<char, 32> text{};
    const auto end = std::to_chars(text.data(), text.data() + text.size(), value,
                                   std::chars_format::general, kSignificantDigits);
    mValues[key] = std::string(text.data(), end.ptr);
}

void Property::setSwitch(const std::string& key, bool value)
{
    mValues[key] = value ? "true" : "false";
}

const std::string* Property::find(const std::string& key) const
{
    const auto found = mValues.find(key);
    return found != mValues.end() ? &found->second : nullptr;
}

} // namespace VELIX
