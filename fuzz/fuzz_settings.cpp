// A damaged settings file: read, asked for every type, written and read again.

#include "core/Property.h"
#include "core/XmlHandler.h"
#include "fuzz/FuzzFolder.h"

#include <QDomDocument>

#include <string>
#include <vector>

namespace {

using namespace VELIX;
using namespace VELIX::Fuzz;

constexpr const char* kFile = "VELIX.ini";
constexpr const char* kBroken = "VELIX.ini.broken";

/// Returns the keys of a settings file; none if it cannot be read.
std::vector<std::string> keysOf(const QString& path, bool& readable)
{
    std::vector<std::string> keys;
    QDomDocument document;
    readable = XmlHandler().xmlReadFile(document, path);
    for (QDomElement e = document.documentElement().firstChildElement(); !e.isNull();
         e = e.nextSiblingElement()) {
        keys.push_back(e.attribute(QStringLiteral("id")).toStdString());
    }
    return keys;
}

void askForEveryType(const Property& settings, const std::string& key)
{
    settings.getInt(key, 0);
    settings.getDouble(key, 0.0);
    settings.getSwitch(key, false);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    static const FuzzFolder folder;
    silenceDiagnostics();
    folder.remove(kBroken);
    const QString path = folder.write(kFile, bytes, size);
    bool readable = false;
    const std::vector<std::string> keys = keysOf(path, readable);

    Property settings;
    settings.setConfigFile(path.toStdString());
    settings.readXmlFile();
    settings.setInt("Fuzz", 7);
    settings.writeXmlFile();

    Property again;
    again.readXmlFile(path.toStdString());
    for (const std::string& key : keys) {
        askForEveryType(settings, key);
        require(again.getString(key, {}) == settings.getString(key, {}),
                "a setting does not survive being written and read");
    }
    require(again.getInt("Fuzz", 0) == 7, "a changed setting was not written");

    const QByteArray input(reinterpret_cast<const char*>(bytes), static_cast<int>(size));
    require(readable || input.isEmpty() || folder.read(kBroken) == input,
            "a settings file that could not be read was not kept");
    return 0;
}
