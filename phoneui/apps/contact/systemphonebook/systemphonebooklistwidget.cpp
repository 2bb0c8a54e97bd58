#include "systemphonebooklistwidget.h"

#include "neighbours.h"
#include "screenwatch.h"
#include "status.h"
#include "systemphonebook.h"
#include "systemphonebookcategorywidget.h"
#include "systemphonebookdatamodel.h"
#include "systemphonebookview.h"
#include "tail.h"

enum SoftKey { GroupsKey = 0, CallKey = 1 };

SystemPhonebookListWidget::SystemPhonebookListWidget(QString category, QWidget *parent, Qt::WindowFlags flags)
    : SystemPhonebookWidget(parent, flags), m_category(category)
{
    setupView("SystemPhonebookListWidget::mView");
    setModel(new SystemPhonebookDataModel(category, this));
    connect(m_view, &ListView::clicked, this, &SystemPhonebookListWidget::selectKeyPressed);
    connect(m_view, &ListView::focusChanged, this, &SystemPhonebookListWidget::updateStatus);
    connect(tail, &Tail::clicked, this, &SystemPhonebookListWidget::tailFuncButtonClicked);
    updateStatus();
    setupTail();
}

/// The category as the title shows it.
QString SystemPhonebookListWidget::categoryText() const
{
    if (m_category == SystemPhonebook::allKey())
        return tr("All");
    return m_category == SystemPhonebook::unassignedKey() ? tr("Unassigned") : m_category;
}

QString SystemPhonebookListWidget::getIndexNumber(int row)
{
    return QString(" (%1/%2)").arg(row + 1).arg(rowCount());
}

void SystemPhonebookListWidget::updateStatus()
{
    if (status)
        status->setTitle(tr("System Phonebook") + " | " + categoryText()
                         + getIndexNumber(m_view->currentIndex().row()));
}

void SystemPhonebookListWidget::setupStatus()
{
    updateStatus();
}

void SystemPhonebookListWidget::setupTail()
{
    const bool hasRows = rowCount() > 0;
    tail->setFuncButtonText(GroupsKey, hasRows ? tr("Groups") : QString());
    tail->setFuncButtonText(CallKey, hasRows ? tr("Call") : QString());
    setupPageKeys();
}

void SystemPhonebookListWidget::retranslate()
{
    setupTail();
    m_view->update(); // entries may show the name of their category
}

void SystemPhonebookListWidget::closeWindows()
{
    closeScreen(m_categoryWidget);
}

void SystemPhonebookListWidget::selectKeyPressed(int)
{
    const QModelIndex current = m_view->currentIndex();
    if (current.isValid())
        Neighbours::dial(current.data(SystemPhonebook::NumberRole).toString().trimmed(),
                         current.data(SystemPhonebook::NameRole).toString());
}

void SystemPhonebookListWidget::tailFuncButtonClicked(int id)
{
    const QString label = tail->funcButtonText(id);
    if (label.isEmpty() || rowCount() == 0)
        return;
    if (label == tr("Groups")) {
        openCategories();
    } else if (label == tr("Call")) {
        if (!Neighbours::isInCall())
            selectKeyPressed(m_view->selectedIdx());
    } else {
        turnPage(label);
    }
}

void SystemPhonebookListWidget::openCategories()
{
    runScreen(
        m_categoryWidget, this, [this] { return new SystemPhonebookCategoryWidget(this, windowFlags()); },
        [this](SystemPhonebookCategoryWidget *) { updateStatus(); });
}
