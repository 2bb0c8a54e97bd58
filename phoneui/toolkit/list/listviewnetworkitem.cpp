#include "listviewnetworkitem.h"

#include "formpainting.h"
#include "rowpainting.h"

#include <QPainter>

ListViewNetworkItem::ListViewNetworkItem(QString const &name, int signalStep, bool secured) : m_secured(secured)
{
    setText(name);
    setSignalStep(signalStep);
}

ListViewNetworkItem::~ListViewNetworkItem() = default;

int ListViewNetworkItem::type()
{
    return 7;
}

void ListViewNetworkItem::setSignalStep(int step)
{
    static constexpr int BestStep = 4;
    m_signalStep = qBound(0, step, BestStep);
}

void ListViewNetworkItem::paint(QPainter *painter, QRect &rect)
{
    static constexpr int SignsFromRight = 8, Gap = 4;

    painter->save();
    paintGround(painter, rect);
    int signsLeft = rect.right() + 1 - SignsFromRight;
    const auto drawSign = [&](const QString &name) {
        const QPixmap sign(QStringLiteral(":/ui/images/title/%1.png").arg(name));
        signsLeft -= sign.width() + Gap;
        RowPainting::drawCentred(painter, rect, signsLeft, RowPainting::inked(sign, painter->pen().color()));
    };
    drawSign(QStringLiteral("status_wifi_%1").arg(m_signalStep));
    if (m_secured)
        drawSign(QStringLiteral("status_lock"));
    FormPainting::drawTitle(painter, rect, signsLeft - Gap, alignment(), text());
    painter->restore();
}
