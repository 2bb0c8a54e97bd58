#ifndef SYSTEMPHONEBOOKCATEGORYWIDGET_H
#define SYSTEMPHONEBOOKCATEGORYWIDGET_H

#include "systemphonebookwidget.h"

#include <QPointer>

class SystemPhonebookListWidget;

/// The categories of the system phonebook, each with the number of its entries; one is chosen to see them.
class SystemPhonebookCategoryWidget : public SystemPhonebookWidget
{
    Q_OBJECT

public:
    SystemPhonebookCategoryWidget(QWidget *parent, Qt::WindowFlags flags);

    void setupStatus() override;
    void setupTail();
    void closeWindows();

public slots:
    void selectKeyPressed(int row);
    void tailFuncButtonClicked(int id);

protected:
    void retranslate() override;

private:
    QPointer<SystemPhonebookListWidget> m_listWidget;
};

#endif
