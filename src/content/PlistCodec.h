#pragma once

#include <QByteArray>
#include <QVariantMap>
#include <optional>

/**
 * @brief XML property lists to and from Qt values, over libplist.
 *
 * Dictionaries become QVariantMap, arrays QVariantList, integers qint64, reals double, strings
 * QString, booleans bool, data QByteArray and dates QDateTime (UTC).
 */
namespace PlistCodec {

/// The root dictionary of a property list (XML or binary); no dictionary when the bytes are not
/// a property list or its root is something else.
[[nodiscard]] std::optional<QVariantMap> dictionaryFromBytes(const QByteArray &bytes);

/// The dictionary as an XML 1.0 property list.
[[nodiscard]] QByteArray toXml(const QVariantMap &dictionary);

} // namespace PlistCodec
