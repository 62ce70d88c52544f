// What a person has changed in a text.
#include "ShareSheet/TextChange.h"

#include <algorithm>

namespace korvane {
namespace {

// Of the first place at which both differ, at most limit.
qsizetype commonStart(QStringView a, QStringView b, qsizetype limit) {
    qsizetype length = 0;
    while (length < limit && a[length] == b[length])
        ++length;
    if (length > 0 && a[length - 1].isHighSurrogate()) --length;
    return length;
}

qsizetype commonEnd(QStringView a, QStringView b, qsizetype limit) {
    qsizetype length = 0;
    while (length < limit && a[a.size() - 1 - length] == b[b.size() - 1 - length])
        ++length;
    if (length > 0 && a[a.size() - length].isLowSurrogate()) --length;
    return length;
}

} // namespace

std::optional<TextChange> TextChange::between(const QString &before, const QString &after, qint64 cursor) {
    if (before == after) return std::nullopt;
    const qsizetype shorter = std::min(before.size(), after.size());
    // What stands behind the cursor was not typed, so that "aa" with an "a" typed in front of it says so.
    const qsizetype behind = std::clamp<qsizetype>(after.size() - cursor, 0, shorter);
    const qsizetype end = commonEnd(before, after, behind);
    const qsizetype start = commonStart(before, after, shorter - end);
    // The rest is common as well where the cursor stands before the end of what was changed, as after an undo.
    const qsizetype tail = std::max(end, commonEnd(before, after, shorter - start));
    return TextChange{{start, before.size() - start - tail}, after.mid(start, after.size() - start - tail)};
}

} // namespace korvane
