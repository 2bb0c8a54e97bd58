// DetailsDial: the text that flows through a row too short for it.

#include "detailsdial.h"

#include "listview.h"

#include <QFontMetrics>
#include <QTimer>

namespace {

constexpr int RowTextWidth = 231; // pixels; a wider text flows
constexpr int FlowStep = 500; // ms

bool canFlow(ListViewItem *row)
{
    return row && (row->type() == 6 || row->type() == 8);
}

}

QString DetailsDial::getFocusedNumber(int idx)
{
    if (idx == m_flowItemIdx && idx >= 0)
        return m_flowFullText;
    ListViewItem *row = m_listView->item(idx);
    return row ? row->text() : QString();
}

void DetailsDial::focusChangedListViewItem(int idx)
{
    startflowString(idx);
    setupTail();
}

void DetailsDial::startflowString(int idx)
{
    stopTimer();
    if (ListViewItem *former = m_flowItemIdx >= 0 ? m_listView->item(m_flowItemIdx) : nullptr)
        former->setText(m_flowFullText);
    m_flowItemIdx = -1;

    ListViewItem *row = m_listView->item(idx);
    if (!canFlow(row))
        return;
    m_flowFullText = row->text();
    if (QFontMetrics(QFont()).horizontalAdvance(m_flowFullText) <= RowTextWidth)
        return;
    m_flowText = m_flowFullText;
    m_flowItemIdx = idx;
    m_flowDelayTimer->start();
}

void DetailsDial::startTimer()
{
    if (!m_flowTimer) {
        m_flowTimer = new QTimer(this);
        connect(m_flowTimer, &QTimer::timeout, this, &DetailsDial::flowString);
    }
    m_flowTimer->start(FlowStep);
}

void DetailsDial::flowString()
{
    ListViewItem *row = m_listView->item(m_flowItemIdx);
    if (!row)
        return;
    m_flowText = m_flowText.size() > 1 ? m_flowText.right(m_flowText.size() - 1) : m_flowFullText;
    row->setText(m_flowText);
    m_listView->update();
}

void DetailsDial::stopTimer()
{
    m_flowDelayTimer->stop();
    if (m_flowTimer) {
        m_flowTimer->stop();
        // The timer may be the one whose signal brought us here.
        m_flowTimer->deleteLater();
        m_flowTimer = nullptr;
    }
}
