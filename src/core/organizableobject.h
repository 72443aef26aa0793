#pragma once

#include "core/organizablelistmodel.h"

namespace Zorv {

/// An ordered list of a project that the person can rearrange: animations,
/// sprites, sounds. The organizer panel works on this interface alone.
class ZORV_EXPORT OrganizableObject : public OrganizableListModel
{
    Q_OBJECT

public:
    using OrganizableListModel::OrganizableListModel;

    /// Moves one row: it stands at `to` afterwards, and the rows between have
    /// shifted by one.
    virtual void move(unsigned from, unsigned to) = 0;

    /// Opens and closes one step of undo.
    virtual void beginChange(const QString& title) = 0;
    virtual void endChange() = 0;

    /// Removes a row.
    virtual void remove(unsigned index) = 0;

    /// Sorts the list into its natural order, as its owner defines that.
    virtual void autoOrganize() = 0;

signals:
    /// The list is to be saved.
    void modified();

    /// Rows have changed; `count` is true if their number has.
    void changed(bool count);

protected:
    void moveTo(unsigned from, unsigned to) override;
};

}  // namespace Zorv
