#ifndef LISTVIEWCHECKLINEEDITITEM_H
#define LISTVIEWCHECKLINEEDITITEM_H

#include "checkedittext.h"
#include "listviewitem.h"

/// A check box with an optional text field, which the list's line edit floats over.
class ListViewCheckLineEditItem : public ListViewItem, public CheckEditText
{
public:
    ListViewCheckLineEditItem(QString const &title, bool const &checked, bool const &useTitleText,
                              QString const &text);
    /// With a text field and without a title.
    ListViewCheckLineEditItem(QString const &title, bool const &checked, QString const &text);
    ~ListViewCheckLineEditItem() override;

    /// A row without its text field is a plain check row.
    int type() override;
    void paint(QPainter *painter, QRect &rect) override;
    int editTextLeftMargin() override;
    void setEditTextLeftMargin(int margin) override;

    void setUseTitleText(bool use) { m_useTitleText = use; }
    bool useTitleText() { return m_useTitleText; }

private:
    int m_editTextLeftMargin = 0;
    bool m_useTitleText;
};

/// A text that the row shows beside a check plate, as in a list of call appearances; no line edit floats over it.
class ListViewLineEditCheckItem : public ListViewItem, public CheckEditText
{
public:
    ListViewLineEditCheckItem(QString const &title, bool const &checked, bool const &useEditText,
                              QString const &text);
    ~ListViewLineEditCheckItem() override;

    int type() override;
    void paint(QPainter *painter, QRect &rect) override;
};

#endif
