// Texts that can be edited, as a field of the window sees them.
#pragma once

#include "Platform/UIKit/UIGeometry.h"

namespace korvane {

// Rows count from 0; a target with one text has the row 0 only. A row without a text takes nothing. Thread: main.
class EditTarget {
public:
    virtual ~EditTarget() = default;
    virtual QString editedText(int row) const = 0;
    // What the person does in the field; false where it is refused.
    virtual bool userReplaces(int row, NSRange range, const QString &replacement) = 0;
    virtual void userBeginsEditing(int row) = 0;
    virtual void userEndsEditing(int row) = 0;
    virtual void userPressesReturn(int row) = 0;
    // What an input method has in the field by now, which is not in the text yet; empty once it is, or is dropped.
    virtual void userComposes(int row, const QString &composition) {
        Q_UNUSED(row)
        Q_UNUSED(composition)
    }
};

} // namespace korvane
