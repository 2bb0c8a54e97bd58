#include "systemphonebookwidget.h"

#include "systemphonebookview.h"
#include "tail.h"

#include <QAbstractItemModel>
#include <QKeyEvent>

namespace {

constexpr QRect ViewGeometry(5, 2, 378, 105);
constexpr int RowsWithoutPageKeys = 3;

enum SoftKey { PreviousKey = 2, NextKey = 3 };

}

SystemPhonebookWidget::SystemPhonebookWidget(QWidget *parent, Qt::WindowFlags flags) : BaseWidget(parent)
{
    setWindowFlags(windowFlags() | flags);
    setFocusPolicy(Qt::StrongFocus);
}

bool SystemPhonebookWidget::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::KeyPress && static_cast<QKeyEvent *>(event)->key() == Qt::Key_Select)
        return true;
    return BaseWidget::eventFilter(watched, event);
}

void SystemPhonebookWidget::showEvent(QShowEvent *event)
{
    BaseWidget::showEvent(event);
    m_view->setFocus(Qt::OtherFocusReason);
}

void SystemPhonebookWidget::setupView(const QString &objectName)
{
    m_view = new SystemPhonebookView(this);
    m_view->setObjectName(objectName);
    m_view->setLineColor(Qt::black);
    m_view->setGeometry(ViewGeometry);
    m_view->installEventFilter(this);
}

void SystemPhonebookWidget::setModel(QAbstractItemModel *model)
{
    m_view->setModel(model);
    m_view->setCurrentRow(0);
    m_view->show();
}

int SystemPhonebookWidget::rowCount() const
{
    return m_view->model() ? m_view->model()->rowCount() : 0;
}

void SystemPhonebookWidget::setupPageKeys()
{
    const bool hasPages = rowCount() > RowsWithoutPageKeys;
    tail->setFuncButtonText(PreviousKey, hasPages ? tr("<") : QString());
    tail->setFuncButtonText(NextKey, hasPages ? tr(">") : QString());
}

void SystemPhonebookWidget::turnPage(const QString &label)
{
    if (label == tr("<"))
        m_view->scrollToPrevious();
    else if (label == tr(">"))
        m_view->scrollToNext();
}
