#include "rowkinds.h"

#include "listviewcheckitem.h"
#include "listviewchecklineedititem.h"
#include "listviewlineedititem.h"
#include "listviewprogressitem.h"
#include "listviewtimeedititem.h"

namespace RowKinds {

bool hasTextField(int type)
{
    return type == LineEdit || type == CheckLineEdit || type == NumberEdit;
}

bool hasOverlay(int type)
{
    return hasTextField(type) || type == TimeEdit;
}

bool isClickedSideways(int type)
{
    return type == Select || type == TimeEdit || type == DateSelect || type == NumberEdit;
}

ListViewProgressItem *progress(ListViewItem *row)
{
    return row && row->type() == Progress ? dynamic_cast<ListViewProgressItem *>(row) : nullptr;
}

ListViewLineEditItem *lineEdit(ListViewItem *row)
{
    const bool fits = row && (row->type() == LineEdit || row->type() == NumberEdit);
    return fits ? dynamic_cast<ListViewLineEditItem *>(row) : nullptr;
}

ListViewCheckLineEditItem *checkLineEdit(ListViewItem *row)
{
    return row && row->type() == CheckLineEdit ? dynamic_cast<ListViewCheckLineEditItem *>(row) : nullptr;
}

ListViewTimeEditItem *timeEdit(ListViewItem *row)
{
    return row && row->type() == TimeEdit ? dynamic_cast<ListViewTimeEditItem *>(row) : nullptr;
}

template <class Row> static bool toggleAs(ListViewItem *row)
{
    auto *check = dynamic_cast<Row *>(row);
    if (check && !check->isNoValueChange())
        check->setChecked(!check->isChecked());
    return check;
}

bool toggle(ListViewItem *row)
{
    if (!row || (row->type() != Check && row->type() != CheckLineEdit))
        return false;
    // A check row with a text field is a plain check row while it does without the field.
    if (!toggleAs<ListViewCheckItem>(row))
        toggleAs<ListViewCheckLineEditItem>(row);
    return true;
}

}
