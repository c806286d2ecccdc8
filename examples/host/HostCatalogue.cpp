#include "HostCatalogue.h"

#include "HotkeyText.h"

#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <cmath>
#include <limits>
#include <set>

namespace Host {

namespace {

constexpr qint64 maximumSize = 16 * 1024 * 1024;

namespace Key {
const QString defaultSet = QStringLiteral("defaultSet");
const QString contexts = QStringLiteral("contexts");
const QString actions = QStringLiteral("actions");
const QString together = QStringLiteral("together");
const QString id = QStringLiteral("id");
const QString name = QStringLiteral("name");
const QString everywhere = QStringLiteral("everywhere");
const QString table = QStringLiteral("table");
const QString context = QStringLiteral("context");
const QString category = QStringLiteral("category");
const QString momentary = QStringLiteral("momentary");
const QString accelerators = QStringLiteral("accelerators");
} // namespace Key

/// The first thing that was found wrong. Reading continues with harmless values after it.
class Fault
{
public:
    bool found() const { return !m_text.isEmpty(); }
    QString text() const { return m_text; }

    void report(const QString &place, const QString &reason)
    {
        if (!found())
            m_text = QStringLiteral("%1: %2").arg(place, reason);
    }

private:
    QString m_text;
};

QString element(const QString &place, int index)
{
    return QStringLiteral("%1[%2]").arg(place, QString::number(index));
}

/// A JSON object that is read member by member, and the place it stands at.
class Members
{
public:
    Members(const QJsonValue &value, const QString &place, const QStringList &known, Fault &fault)
        : m_object(value.toObject()), m_place(place), m_fault(fault)
    {
        if (!value.isObject()) {
            m_fault.report(place.isEmpty() ? QStringLiteral("the catalogue") : place,
                           QStringLiteral("is not an object"));
        }
        for (const QString &key : m_object.keys()) {
            if (!known.contains(key))
                report(key, QStringLiteral("is not known here"));
        }
    }

    Fault &fault() const { return m_fault; }
    QString at(const QString &key) const
    {
        return m_place.isEmpty() ? key : m_place + QLatin1Char('.') + key;
    }
    void report(const QString &key, const QString &reason) const
    {
        m_fault.report(at(key), reason);
    }

    bool has(const QString &key) const { return m_object.contains(key); }

    QString text(const QString &key) const
    {
        return value(key, QJsonValue::String, QStringLiteral("is not a text")).toString();
    }

    QString filledText(const QString &key) const
    {
        QString result = text(key);
        if (result.isEmpty())
            report(key, QStringLiteral("is empty"));
        return result;
    }

    unsigned long number(const QString &key) const
    {
        constexpr double maximum = std::numeric_limits<quint32>::max();
        const double result =
                value(key, QJsonValue::Double, QStringLiteral("is not a number")).toDouble();
        if (result >= 0 && result <= maximum && std::floor(result) == result)
            return static_cast<unsigned long>(result);
        report(key, QStringLiteral("is not a whole number from 0 to 4294967295"));
        return 0;
    }

    bool flag(const QString &key) const
    {
        return value(key, QJsonValue::Bool, QStringLiteral("is neither true nor false")).toBool();
    }

    QJsonArray array(const QString &key) const
    {
        return value(key, QJsonValue::Array, QStringLiteral("is not an array")).toArray();
    }

private:
    QJsonValue value(const QString &key, QJsonValue::Type type, const QString &otherType) const
    {
        if (!has(key))
            report(key, QStringLiteral("is missing"));
        else if (m_object.value(key).type() != type)
            report(key, otherType);
        return m_object.value(key);
    }

    QJsonObject m_object;
    QString m_place;
    Fault &m_fault;
};

QString defaultSetOf(const Members &catalogue)
{
    QString file = catalogue.text(Key::defaultSet);
    if (file.contains(QLatin1Char('/')) || file.contains(QLatin1Char('\\'))
        || file == QLatin1String(".") || file == QLatin1String(".."))
        catalogue.report(Key::defaultSet, QStringLiteral("is not a file name without a folder"));
    return file;
}

QStringList acceleratorsOf(const Members &action, QStringList &warnings)
{
    QStringList result;
    if (!action.has(Key::accelerators))
        return result;
    const QJsonArray array = action.array(Key::accelerators);
    for (int i = 0; i < array.size(); ++i) {
        const QString place = element(action.at(Key::accelerators), i);
        QString reason;
        const std::optional<QString> hotkey = canonicalHotkey(array.at(i).toString(), reason);
        if (!array.at(i).isString())
            action.fault().report(place, QStringLiteral("is not a text"));
        else if (hotkey)
            result.append(*hotkey);
        else
            warnings.append(QStringLiteral("%1: %2; it is left out").arg(place, reason));
    }
    return result;
}

HostCatalogue::Action actionOf(const Members &members, QStringList &warnings)
{
    HostCatalogue::Action action;
    action.identifier.tableId = members.number(Key::table);
    action.identifier.actionId = members.filledText(Key::id);
    action.name = members.text(Key::name);
    action.contextId = members.number(Key::context);
    action.category = members.text(Key::category);
    action.momentary = members.has(Key::momentary) && members.flag(Key::momentary);
    action.accelerators = acceleratorsOf(members, warnings);
    return action;
}

void readContexts(const QJsonArray &array, HostCatalogue &catalogue, Fault &fault)
{
    std::set<unsigned long> ids;
    for (int i = 0; i < array.size() && !fault.found(); ++i) {
        const Members members(array.at(i), element(Key::contexts, i),
                              {Key::id, Key::name, Key::everywhere}, fault);
        catalogue.contexts.push_back(
                {members.number(Key::id), members.text(Key::name),
                 members.has(Key::everywhere) && members.flag(Key::everywhere)});
        if (!ids.insert(catalogue.contexts.back().id).second)
            members.report(Key::id, QStringLiteral("an earlier context has this id"));
    }
}

void readActions(const QJsonArray &array, HostCatalogue &catalogue, Fault &fault)
{
    const QStringList known = {Key::table,    Key::id,        Key::name,        Key::context,
                               Key::category, Key::momentary, Key::accelerators};
    std::set<unsigned long> contextIds;
    for (const HostCatalogue::Context &context : catalogue.contexts)
        contextIds.insert(context.id);
    std::set<CUI::ActionIdentifier> identifiers;
    for (int i = 0; i < array.size() && !fault.found(); ++i) {
        const Members members(array.at(i), element(Key::actions, i), known, fault);
        const HostCatalogue::Action action = actionOf(members, catalogue.warnings);
        if (contextIds.count(action.contextId) == 0) {
            members.report(Key::context, QStringLiteral("there is no context %1")
                                                 .arg(QString::number(action.contextId)));
        }
        if (!identifiers.insert(action.identifier).second) {
            members.report(Key::id, QStringLiteral("an earlier action is %1 already")
                                            .arg(action.identifier.toString()));
        }
        catalogue.actions.push_back(action);
    }
}

std::vector<unsigned long> partOf(const QJsonValue &value, const QString &place,
                                  const HostCatalogue &catalogue, Fault &fault)
{
    std::vector<unsigned long> part;
    if (!value.isArray())
        fault.report(place, QStringLiteral("is not an array"));
    const QJsonArray array = value.toArray();
    for (int i = 0; i < array.size(); ++i) {
        const double id = array.at(i).toDouble(-1);
        const auto context = std::find_if(catalogue.contexts.begin(), catalogue.contexts.end(),
                                          [id](const HostCatalogue::Context &known) {
                                              return static_cast<double>(known.id) == id;
                                          });
        if (context == catalogue.contexts.end())
            fault.report(element(place, i), QStringLiteral("is not the id of a context"));
        else
            part.push_back(context->id);
    }
    return part;
}

void readTogether(const Members &root, HostCatalogue &catalogue, Fault &fault)
{
    if (!root.has(Key::together))
        return;
    const QJsonArray array = root.array(Key::together);
    for (int i = 0; i < array.size(); ++i)
        catalogue.together.push_back(
                partOf(array.at(i), element(Key::together, i), catalogue, fault));
}

QString lineAndColumn(const QByteArray &json, int offset)
{
    const QByteArray before = json.left(qBound(0, offset, json.size()));
    const int lineStart = before.lastIndexOf('\n') + 1;
    const int column = QString::fromUtf8(before.mid(lineStart)).size() + 1;
    return QStringLiteral("%1:%2").arg(QString::number(before.count('\n') + 1),
                                       QString::number(column));
}

} // namespace

std::vector<unsigned long> HostCatalogue::everywhere() const
{
    std::vector<unsigned long> ids;
    for (const Context &context : contexts) {
        if (context.everywhere)
            ids.push_back(context.id);
    }
    return ids;
}

CUI::HotkeyAudit::Options HostCatalogue::auditOptions() const
{
    CUI::HotkeyAudit::Options options;
    options.everywhere = everywhere();
    options.isEverywhereOrdered = true;
    options.together = together;
    return options;
}

std::optional<HostCatalogue> HostCatalogue::parse(const QByteArray &json, const QString &fileName,
                                                  QString &error)
{
    QJsonParseError syntax;
    const QJsonDocument document = QJsonDocument::fromJson(json, &syntax);
    if (syntax.error != QJsonParseError::NoError) {
        error = QStringLiteral("%1:%2: %3")
                        .arg(fileName, lineAndColumn(json, syntax.offset), syntax.errorString());
        return {};
    }
    Fault fault;
    const Members root(document.isObject() ? QJsonValue(document.object()) : QJsonValue(),
                       QString(), {Key::defaultSet, Key::contexts, Key::actions, Key::together},
                       fault);
    HostCatalogue catalogue;
    catalogue.defaultSet = defaultSetOf(root);
    readContexts(root.array(Key::contexts), catalogue, fault);
    readActions(root.array(Key::actions), catalogue, fault);
    readTogether(root, catalogue, fault);
    if (fault.found()) {
        error = QStringLiteral("%1: %2").arg(fileName, fault.text());
        return {};
    }
    for (QString &warning : catalogue.warnings)
        warning = QStringLiteral("%1: %2").arg(fileName, warning);
    return catalogue;
}

std::optional<HostCatalogue> HostCatalogue::load(const QString &path, QString &error)
{
    const QFileInfo info(path);
    QFile file(path);
    // Reading a pipe or a device might never end.
    if (info.exists() && !info.isFile()) {
        error = QStringLiteral("%1: is not a regular file").arg(path);
        return {};
    }
    if (!file.open(QIODevice::ReadOnly)) {
        error = QStringLiteral("%1: cannot be opened: %2").arg(path, file.errorString());
        return {};
    }
    const QByteArray json = file.read(maximumSize + 1);
    if (file.error() != QFileDevice::NoError) {
        error = QStringLiteral("%1: cannot be read: %2").arg(path, file.errorString());
        return {};
    }
    if (json.size() > maximumSize) {
        error = QStringLiteral("%1: is larger than 16 MiB").arg(path);
        return {};
    }
    return parse(json, path, error);
}

} // namespace Host
