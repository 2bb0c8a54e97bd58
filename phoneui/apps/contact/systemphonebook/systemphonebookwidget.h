#ifndef SYSTEMPHONEBOOKWIDGET_H
#define SYSTEMPHONEBOOKWIDGET_H

#include "basewidget.h"

class QAbstractItemModel;
class SystemPhonebookView;

/// What the two screens of the system phonebook share: a view on a model, and soft keys that turn its pages.
class SystemPhonebookWidget : public BaseWidget
{
    Q_OBJECT

public:
    SystemPhonebookWidget(QWidget *parent, Qt::WindowFlags flags);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void showEvent(QShowEvent *event) override;

    void setupView(const QString &objectName);
    void setModel(QAbstractItemModel *model);
    int rowCount() const;
    /// The keys 2 and 3, in a list that is longer than what a page of other lists holds.
    void setupPageKeys();
    /// Turns a page when the label is one that does that.
    void turnPage(const QString &label);

    SystemPhonebookView *m_view = nullptr;
};

#endif
