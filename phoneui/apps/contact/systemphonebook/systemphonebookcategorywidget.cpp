#include "systemphonebookcategorywidget.h"

#include "screenwatch.h"
#include "status.h"
#include "systemphonebookcategorymodel.h"
#include "systemphonebooklistwidget.h"
#include "systemphonebookview.h"
#include "tail.h"

enum SoftKey { AllKey = 0, NoKey = 1 };

SystemPhonebookCategoryWidget::SystemPhonebookCategoryWidget(QWidget *parent, Qt::WindowFlags flags)
    : SystemPhonebookWidget(parent, flags)
{
    setupView("SystemPhonebookCategoryWidget::mView");
    setModel(new SystemPhonebookCategoryModel(this));
    connect(m_view, &ListView::clicked, this, &SystemPhonebookCategoryWidget::selectKeyPressed);
    connect(tail, &Tail::clicked, this, &SystemPhonebookCategoryWidget::tailFuncButtonClicked);
    SystemPhonebookCategoryWidget::setupStatus();
    setupTail();
}

void SystemPhonebookCategoryWidget::setupStatus()
{
    if (status)
        status->setTitle(tr("System Phonebook") + " | " + tr("Groups"));
}

void SystemPhonebookCategoryWidget::setupTail()
{
    tail->setFuncButtonText(AllKey, tr("All"));
    tail->setFuncButtonText(NoKey, QString());
    setupPageKeys();
}

void SystemPhonebookCategoryWidget::retranslate()
{
    setupTail();
    m_view->update();
}

void SystemPhonebookCategoryWidget::closeWindows()
{
    closeScreen(m_listWidget);
}

void SystemPhonebookCategoryWidget::selectKeyPressed(int)
{
    const QString key = m_view->currentIndex().data(Qt::EditRole).toString();
    if (key.isEmpty()) {
        close();
        return;
    }
    runScreen(
        m_listWidget, this, [this, key] { return new SystemPhonebookListWidget(key, this, windowFlags()); },
        [this](SystemPhonebookListWidget *) { setupStatus(); });
}

void SystemPhonebookCategoryWidget::tailFuncButtonClicked(int id)
{
    const QString label = tail->funcButtonText(id);
    if (label == tr("All"))
        close();
    else
        turnPage(label);
}
