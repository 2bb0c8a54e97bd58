#ifndef LISTVIEWPROGRESSITEM_H
#define LISTVIEWPROGRESSITEM_H

#include "listviewitem.h"

/// A value shown as a bar of cells, such as a volume.
class ListViewProgressItem : public ListViewItem
{
public:
    /// The maximum is taken as it comes; only `setMaxValue` refuses more cells than a row has room for.
    ListViewProgressItem(QString const &title, int maxValue);
    ~ListViewProgressItem() override;

    int type() override;
    void paint(QPainter *painter, QRect &rect) override;

    void setStep(int step) { m_step = step; }
    int step() { return m_step; }
    /// Limited to the maximum, then to the minimum.
    void setValue(int value);
    int value() { return m_value; }
    void setMinValue(int value);
    int minValue() { return m_minValue; }
    /// Up to 15; the value stays as it is even if it is larger.
    void setMaxValue(int value);
    int maxValue() { return m_maxValue; }
    /// The row leaves its right side to a slider that the screen puts there, and draws no cells.
    void setUseSlider(bool use) { m_useSlider = use; }
    bool useSlider() const { return m_useSlider; }

    /// The pictures for such a slider.
    QPixmap const &normalPixmap() const { return m_normalPixmap; }
    QPixmap const &pressPixmap() const { return m_pressPixmap; }
    QPixmap const &pressFocusPixmap() const { return m_pressFocusPixmap; }

private:
    QPixmap m_normalPixmap;
    QPixmap m_pressPixmap;
    QPixmap m_pressFocusPixmap;
    int m_step = 1;
    int m_value = 0;
    int m_minValue = 0;
    int m_maxValue;
    bool m_useSlider = false;
};

#endif
