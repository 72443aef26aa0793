#pragma once

#include "core/organizablelistmodel.h"

namespace Zorv {

/// An ordered list of a project that the user can rearrange: animations,
/// sprites, sounds. The organizer panel uses only this interface.
class ZORV_EXPORT OrganizableObject : public OrganizableListModel
{
    Q_OBJECT

public:
    using OrganizableListModel::OrganizableListModel;

    /// Moves one row. `to` is its index afterwards; the rows in between shift
    /// by one.
    virtual void move(unsigned from, unsigned to) = 0;

    /// Start and end one undo step.
    virtual void beginChange(const QString& title) = 0;
    virtual void endChange() = 0;

    /// Removes a row.
    virtual void remove(unsigned index) = 0;

    /// Sorts the list into its natural order, which the derived class defines.
    virtual void autoOrganize() = 0;

signals:
    /// The list needs to be saved.
    void modified();

    /// Rows have changed; `count` is true if their number changed.
    void changed(bool count);

protected:
    void moveTo(unsigned from, unsigned to) override;
};

}  // namespace Zorv
