#include "shapedtext.h"

#include <QCache>
#include <QCoreApplication>
#include <QFontMetrics>
#include <QHash>
#include <QPainter>
#include <QTextLayout>

#include <algorithm>

namespace {

constexpr int KeptTexts = 500; // a screen shows about twenty, and a usual phonebook is leafed through to and fro

struct Key
{
    QFont font;
    int widest;
    QString text;

    bool operator==(const Key &other) const
    {
        return widest == other.widest && text == other.text && font == other.font;
    }
};

uint qHash(const Key &key, uint seed = 0)
{
    return ::qHash(key.text, seed) ^ ::qHash(key.font, seed) ^ uint(key.widest);
}

/// A text that QTextLayout takes for one line.
bool isOneLine(const QString &text)
{
    return std::all_of(text.cbegin(), text.cend(), [](QChar c) {
        return c.category() != QChar::Other_Control && c != QChar::LineSeparator && c != QChar::ParagraphSeparator;
    });
}

QTextLayout *shape(const QFont &font, const QString &text)
{
    static constexpr qreal Unlimited = 0x01000000;
    auto *layout = new QTextLayout(text, font);
    QTextOption option;
    option.setTextDirection(Qt::LeftToRight);
    option.setFlags(QTextOption::IncludeTrailingSpaces);
    layout->setTextOption(option);
    layout->setCacheEnabled(true);
    layout->beginLayout();
    QTextLine line = layout->createLine();
    line.setLineWidth(Unlimited);
    line.setPosition(QPointF());
    layout->endLayout();
    return layout;
}

using Cache = QCache<Key, QTextLayout>;

/// Ends with the application, because the texts hold fonts.
Cache &cache()
{
    static Cache kept(KeptTexts);
    static const bool cleared = [] {
        qAddPostRoutine([] { kept.clear(); });
        return true;
    }();
    Q_UNUSED(cleared)
    return kept;
}

QTextLayout *find(const QFont &font, int widest, const QString &text)
{
    const Key key{font, widest, text};
    QTextLayout *layout = cache().object(key);
    if (layout)
        return layout;
    layout = shape(font, text);
    if (layout->lineAt(0).horizontalAdvance() > widest) {
        delete layout;
        layout = shape(font, QFontMetrics(font).elidedText(text, Qt::ElideRight, widest));
    }
    cache().insert(key, layout);
    return layout;
}

void draw(QPainter *painter, const QRect &rect, int flags, const QTextLayout &layout)
{
    const QTextLine line = layout.lineAt(0);
    const qreal height = line.height();
    const qreal width = line.horizontalAdvance();
    QPointF at(rect.topLeft());
    if (flags & Qt::AlignRight)
        at.rx() += rect.width() - width;
    else if (flags & Qt::AlignHCenter)
        at.rx() += (rect.width() - width) / 2;
    if (flags & Qt::AlignBottom)
        at.ry() += rect.height() - height;
    else if (flags & Qt::AlignVCenter)
        at.ry() += qRound((rect.height() - height) / 2); // half a pixel goes above

    const bool clips = !(flags & Qt::TextDontClip) && !QRectF(rect).contains(QRectF(at, QSizeF(width, height)));
    if (clips) {
        painter->save();
        painter->setClipRect(rect, Qt::IntersectClip);
    }
    line.draw(painter, at);
    if (clips)
        painter->restore();
}

}

void ShapedText::draw(QPainter *painter, const QRect &rect, int flags, const QString &text, int widest)
{
    if (text.isEmpty())
        return;
    if (isOneLine(text))
        ::draw(painter, rect, flags, *find(painter->font(), widest, text));
    else
        painter->drawText(rect, flags, painter->fontMetrics().elidedText(text, Qt::ElideRight, widest));
}

int ShapedText::width(const QFont &font, const QString &text)
{
    if (text.isEmpty() || !isOneLine(text))
        return QFontMetrics(font).horizontalAdvance(text);
    return qRound(find(font, AnyWidth, text)->lineAt(0).horizontalAdvance());
}
