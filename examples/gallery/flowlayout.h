#ifndef KES_GALLERY_FLOWLAYOUT_H
#define KES_GALLERY_FLOWLAYOUT_H

#include <QLayout>
#include <QList>

namespace kes::gallery {

/// Lays items out left to right and starts a new row when the next one would not fit, like words
/// in a paragraph, so that a collection of tiles uses whatever width the page has.
class FlowLayout : public QLayout
{
    Q_OBJECT

public:
    explicit FlowLayout(QWidget* parent = nullptr);
    ~FlowLayout() override;

    void setHorizontalSpacing(int spacing);
    int horizontalSpacing() const { return m_horizontalSpacing; }
    void setVerticalSpacing(int spacing);
    int verticalSpacing() const { return m_verticalSpacing; }

    void addItem(QLayoutItem* item) override;
    int count() const override;
    QLayoutItem* itemAt(int index) const override;
    QLayoutItem* takeAt(int index) override;

    Qt::Orientations expandingDirections() const override;
    bool hasHeightForWidth() const override;
    int heightForWidth(int width) const override;
    QSize minimumSize() const override;
    QSize sizeHint() const override;
    void setGeometry(const QRect& rect) override;

private:
    /// Places the items within \a rect (only measuring when \a apply is false) and returns the
    /// height they need, margins included.
    int arrange(const QRect& rect, bool apply) const;

    QList<QLayoutItem*> m_items;
    int m_horizontalSpacing = 6;
    int m_verticalSpacing = 6;
};

} // namespace kes::gallery

#endif
