#pragma once

#include <QJsonDocument>
#include <QJsonObject>
#include <QJsonValue>
#include <QString>

#include <optional>

namespace tarvo {

/// What came of reading a JSON text (RFC 8259).
struct ParsedJson {
    std::optional<QJsonDocument> document; ///< nil when the text is no JSON object or array
    QString error; ///< why it is none, without anything of the text; empty when it is one
};

/// Reads @p text, which must hold an object or an array at the top and nothing beside it.
ParsedJson parseJson(const QString &text);

/// What came of reading a JSON text that is to be an object.
struct ParsedObject {
    std::optional<QJsonObject> object; ///< nil when the text is none
    QString error; ///< why it is none, without anything of the text; empty when it is one
};

/// Reads @p text, which must hold an object at the top and nothing beside it.
ParsedObject parseJsonObject(const QString &text);

/// The integer that @p value stands for: a number is cut towards zero, a text is read up to its first character that
/// belongs to no number (`"1"` is 1), true is 1. Anything else is 0, and what is too large is the largest.
qint64 integerValue(const QJsonValue &value);

} // namespace tarvo
