#include "gui/project/Project.h"

#include "core/XmlHandler.h"
#include "profile/Profile.h"

#include <QDomDocument>

#include <set>
#include <utility>

namespace VELIX {

namespace {

const QString kRoot = QStringLiteral("VelixProject");
const QString kParameters = QStringLiteral("Parameters");
const QString kParameter = QStringLiteral("Parameter");
const QString kCanProperties = QStringLiteral("CanProperties");
const QString kProperty = QStringLiteral("Property");
const QString kName = QStringLiteral("name");
const QString kId = QStringLiteral("id");
const QString kValue = QStringLiteral("value");

template <typename Function>
void forEachParameter(Profile& profile, Function function)
{
    for (ProfileDevice& device : profile.data().devices) {
        for (auto& [id, parameter] : device.parameters) {
            function(parameter);
        }
    }
}

/// The children of this name of every list element of this name below the root.
template <typename Function>
void forEachItem(const QDomElement& root, const QString& list, const QString& item,
                 Function function)
{
    for (QDomElement l = root.firstChildElement(list); !l.isNull();
         l = l.nextSiblingElement(list)) {
        for (QDomElement e = l.firstChildElement(item); !e.isNull();
             e = e.nextSiblingElement(item)) {
            function(e.attributes());
        }
    }
}

} // namespace

Project& Project::instance()
{
    static Project project(Profile::instance());
    return project;
}

Project::Project(Profile& profile) : mProfile(profile) {}

void Project::setProfileData()
{
    mSelected.clear();
    forEachParameter(mProfile, [this](ProfileParameter& p) {
        p.selected = false;
        mSelected.emplace(p.fullName.toStdString(), false);
    });
}

void Project::clear()
{
    setProfileData();
    mCanProperties.clear();
}

int Project::saveProject(const std::string& file)
{
    XmlHandler xml;
    QDomDocument document;
    QDomElement root = xml.xmlCreateElement(document, document, kRoot);

    QDomElement parameters = xml.xmlCreateElement(document, root, kParameters);
    const auto write = [&](const QString& name) {
        QDomElement e = xml.xmlCreateElement(document, parameters, kParameter);
        xml.xmlCreateAttribute(document, e, kName, name);
    };
    std::set<std::string> known;
    forEachParameter(mProfile, [&](const ProfileParameter& p) {
        known.insert(p.fullName.toStdString());
        if (p.selected) {
            write(p.fullName);
        }
    });
    // Names that wait for another profile or variant survive the saving.
    for (const auto& [name, selected] : mSelected) {
        if (selected && known.count(name) == 0) {
            write(QString::fromStdString(name));
        }
    }
    QDomElement properties = xml.xmlCreateElement(document, root, kCanProperties);
    for (const auto& [key, value] : mCanProperties) {
        QDomElement e = xml.xmlCreateElement(document, properties, kProperty);
        xml.xmlCreateAttribute(document, e, kId, key);
        xml.xmlCreateAttribute(document, e, kValue, value);
    }
    return xml.xmlWriteFile(document, QString::fromStdString(file)) ? 1 : 0;
}

int Project::readProject(const std::string& file)
{
    XmlHandler xml;
    QDomDocument document;
    if (!xml.xmlReadFile(document, QString::fromStdString(file))) {
        return 0;
    }
    const QDomElement root = document.documentElement();
    mIsProjectFile = root.nodeName() == kRoot;
    setProfileData();
    forEachItem(root, kParameters, kParameter, [&](const QDomNamedNodeMap& attributes) {
        mSelected[xml.xmlGetStdStringAttribute(attributes, kName, {})] = true;
    });
    restoreSelection();

    mCanProperties.clear();
    forEachItem(root, kCanProperties, kProperty, [&](const QDomNamedNodeMap& attributes) {
        mCanProperties[xml.xmlGetStdStringAttribute(attributes, kId, {})] =
            xml.xmlGetStdStringAttribute(attributes, kValue, {});
    });
    return 1;
}

void Project::rememberSelection()
{
    // Two parameters of one name are one entry: selected if either is.
    std::set<std::string> seen;
    forEachParameter(mProfile, [&](const ProfileParameter& p) {
        const std::string name = p.fullName.toStdString();
        const bool first = seen.insert(name).second;
        bool& selected = mSelected[name];
        selected = p.selected || (selected && !first);
    });
}

void Project::restoreSelection()
{
    forEachParameter(mProfile, [this](ProfileParameter& p) {
        const auto entry = mSelected.find(p.fullName.toStdString());
        p.selected = entry != mSelected.end() && entry->second;
    });
}

void Project::setCanProperties(const std::map<std::string, std::string>& props)
{
    mCanProperties = props;
}

} // namespace VELIX
