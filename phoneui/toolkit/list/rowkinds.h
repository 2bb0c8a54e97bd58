#ifndef ROWKINDS_H
#define ROWKINDS_H

class ListViewCheckLineEditItem;
class ListViewItem;
class ListViewLineEditItem;
class ListViewProgressItem;
class ListViewTimeEditItem;

/// The type codes that the list acts on, and the one place where a code leads to its class.
namespace RowKinds {

enum Type {
    Progress = 1,
    Select = 2,
    Check = 3,
    LineEdit = 5,
    TimeEdit = 11,
    DateSelect = 12,
    CheckLineEdit = 15,
    NumberEdit = 17
};

/// A text field, over which the line edit floats.
bool hasTextField(int type);
/// A text field or a time.
bool hasOverlay(int type);
/// Left and Right click the row.
bool isClickedSideways(int type);

// Null for null and for rows of another kind.

ListViewProgressItem *progress(ListViewItem *row);
ListViewLineEditItem *lineEdit(ListViewItem *row);
ListViewCheckLineEditItem *checkLineEdit(ListViewItem *row);
ListViewTimeEditItem *timeEdit(ListViewItem *row);

/// True for a row with a check box. Its check is turned over unless the row leaves that to its screen.
bool toggle(ListViewItem *row);

}

#endif
