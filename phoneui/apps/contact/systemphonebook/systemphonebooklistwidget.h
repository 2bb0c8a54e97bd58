#ifndef SYSTEMPHONEBOOKLISTWIDGET_H
#define SYSTEMPHONEBOOKLISTWIDGET_H

#include "systemphonebookwidget.h"

#include <QPointer>

class SystemPhonebookCategoryWidget;

/// The entries of one category of the system phonebook; any of them can be called.
class SystemPhonebookListWidget : public SystemPhonebookWidget
{
    Q_OBJECT

public:
    /// `category` is one of the reserved keys or a category as the file has it.
    SystemPhonebookListWidget(QString category, QWidget *parent, Qt::WindowFlags flags);

    /// The place of a row, counted from 0, among all: " (1/12)".
    QString getIndexNumber(int row);
    void updateStatus();
    void setupStatus() override;
    void setupTail();
    void closeWindows();

public slots:
    /// Dials the selected entry, whatever the state of the line.
    void selectKeyPressed(int row);
    void tailFuncButtonClicked(int id);

protected:
    void retranslate() override;

private:
    void openCategories();
    QString categoryText() const;

    QString m_category;
    QPointer<SystemPhonebookCategoryWidget> m_categoryWidget;
};

#endif
