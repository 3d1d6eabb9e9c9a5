#include "PlistCodec.h"

#include <QDateTime>
#include <QTimeZone>
#include <cstdlib>
#include <limits>
#include <memory>
#include <plist/plist.h>

namespace PlistCodec {

namespace {

struct PlistDeleter {
    void operator()(void *node) const { plist_free(static_cast<plist_t>(node)); }
};
using PlistPtr = std::unique_ptr<void, PlistDeleter>;

// Property-list dates count seconds from 2001-01-01 00:00:00 UTC.
const QDateTime plistEpoch(QDate(2001, 1, 1), QTime(0, 0), QTimeZone::utc());

QVariant toVariant(plist_t node)
{
    switch (plist_get_node_type(node)) {
    case PLIST_DICT: {
        QVariantMap map;
        plist_dict_iter iterator = nullptr;
        plist_dict_new_iter(node, &iterator);
        for (;;) {
            char *key = nullptr;
            plist_t value = nullptr;
            plist_dict_next_item(node, iterator, &key, &value);
            if (!key)
                break;
            map.insert(QString::fromUtf8(key), toVariant(value));
            free(key);
        }
        free(iterator);
        return map;
    }
    case PLIST_ARRAY: {
        QVariantList list;
        const uint32_t size = plist_array_get_size(node);
        for (uint32_t i = 0; i < size; ++i)
            list.append(toVariant(plist_array_get_item(node, i)));
        return list;
    }
    case PLIST_UINT: {
        uint64_t value = 0;
        plist_get_uint_val(node, &value);
        // libplist keeps every integer in this node type; the record's counters are signed.
        return static_cast<qint64>(value);
    }
    case PLIST_REAL: {
        double value = 0;
        plist_get_real_val(node, &value);
        return value;
    }
    case PLIST_BOOLEAN: {
        uint8_t value = 0;
        plist_get_bool_val(node, &value);
        return value != 0;
    }
    case PLIST_STRING: {
        char *value = nullptr;
        plist_get_string_val(node, &value);
        QString text = QString::fromUtf8(value);
        free(value);
        return text;
    }
    case PLIST_DATA: {
        char *value = nullptr;
        uint64_t length = 0;
        plist_get_data_val(node, &value, &length);
        QByteArray data(value, static_cast<qsizetype>(length));
        free(value);
        return data;
    }
    case PLIST_DATE: {
        int32_t seconds = 0;
        int32_t microseconds = 0;
        plist_get_date_val(node, &seconds, &microseconds);
        return plistEpoch.addMSecs(qint64{seconds} * 1000 + microseconds / 1000);
    }
    default:
        return {};
    }
}

plist_t toNode(const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::QVariantMap: {
        plist_t dict = plist_new_dict();
        const QVariantMap map = value.toMap();
        for (auto it = map.cbegin(); it != map.cend(); ++it)
            plist_dict_set_item(dict, it.key().toUtf8().constData(), toNode(it.value()));
        return dict;
    }
    case QMetaType::QVariantList: {
        plist_t array = plist_new_array();
        for (const QVariant &item : value.toList())
            plist_array_append_item(array, toNode(item));
        return array;
    }
    case QMetaType::Bool:
        return plist_new_bool(value.toBool() ? 1 : 0);
    case QMetaType::Double:
    case QMetaType::Float:
        return plist_new_real(value.toDouble());
    case QMetaType::QByteArray: {
        const QByteArray data = value.toByteArray();
        return plist_new_data(data.constData(), static_cast<uint64_t>(data.size()));
    }
    case QMetaType::QDateTime: {
        const qint64 msecs = plistEpoch.msecsTo(value.toDateTime());
        return plist_new_date(static_cast<int32_t>(msecs / 1000),
                              static_cast<int32_t>(msecs % 1000) * 1000);
    }
    case QMetaType::Int:
    case QMetaType::LongLong:
    case QMetaType::UInt:
    case QMetaType::ULongLong:
        return plist_new_uint(static_cast<uint64_t>(value.toLongLong()));
    default:
        return plist_new_string(value.toString().toUtf8().constData());
    }
}

} // namespace

std::optional<QVariantMap> dictionaryFromBytes(const QByteArray &bytes)
{
    if (bytes.isEmpty() || bytes.size() > std::numeric_limits<uint32_t>::max())
        return std::nullopt;
    plist_t raw = nullptr;
    plist_from_memory(bytes.constData(), static_cast<uint32_t>(bytes.size()), &raw);
    const PlistPtr root(raw);
    if (!root || plist_get_node_type(root.get()) != PLIST_DICT)
        return std::nullopt;
    return toVariant(root.get()).toMap();
}

QByteArray toXml(const QVariantMap &dictionary)
{
    const PlistPtr root(toNode(dictionary));
    char *xml = nullptr;
    uint32_t length = 0;
    plist_to_xml(root.get(), &xml, &length);
    QByteArray result(xml, static_cast<qsizetype>(length));
    plist_to_xml_free(xml);
    return result;
}

} // namespace PlistCodec
