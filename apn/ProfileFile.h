#pragma once

#include "apn/ProfileKey.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

#include <optional>

namespace tarvo {

/// A profile is a few records; a file of more bytes than this is none.
inline constexpr qsizetype maximumProfileSize{256 << 10};

/// What reading a file gave.
struct ProfileBytes {
    std::optional<QByteArray> bytes; ///< nil when the file cannot be read
    QString problem; ///< why not, as the end of a sentence; empty when it can
};

/// What decoding a profile gave.
struct ProfileText {
    std::optional<QString> text; ///< nil unless the whole file is in order
    QString problem; ///< what is wrong, as the end of a sentence; empty when nothing is
};

/// Picks the bytes of each record that are decoded, in file order.
///
/// A record is looked at as text first: the bytes from its start to the next zero byte, however many records
/// on, or to the end of the file. When they are UTF-8 and hold a line end (CR LF), the text up to the last
/// line end is what is decoded; otherwise it is the record itself.
class CipherInputs {
public:
    /// @param file  whole records; must outlive this object
    explicit CipherInputs(QByteArrayView file);

    /// @param record  the offset of a record, not before the one of the last call
    /// @return the 128 bytes to decode; nil when the text is shorter than that
    std::optional<ProfileBlock> at(qsizetype record);

private:
    void findTextFrom(qsizetype record);

    QByteArrayView m_file;
    qsizetype m_textEnd = 0;
    qsizetype m_lastLineEnd = -1; ///< the last one before `m_textEnd`; -1 for none
};

/// Reads the regular file at @p path, links followed, whole. Never waits for a writer, as on a FIFO.
ProfileBytes readProfileBytes(const QString &path);

/// Decodes the records in @p file, each by itself, and joins their texts. A record with more than zero bytes after its
/// text's end is damaged: nobody packs such, and a forger who needs room would.
ProfileText decodeProfile(QByteArrayView file, const ProfileKey &key);

/// Reads and decodes the file at @p path.
ProfileText readProfile(const QString &path, const ProfileKey &key);

} // namespace tarvo
