#pragma once

#include <QColor>
#include <QIcon>
#include <QPixmap>
#include <QString>
#include <QWidget>

#include <memory>

class LMFormatDataViewDelegate;
class LMFormatInternationalizationMgr;

// The laid-out cell of a list entry: image, title, description and the edit and
// remove buttons, from the interface file LMFormatDataViewItem.ui. A list never
// shows it on screen: it places it over the entry's row and paints it there, so
// only visible rows cost anything. The view draws the rounded background of a
// hovered or selected cell and reports the pointer's entry and exit to its
// delegate (the item).
class LMFormatDataView : public QWidget {
    Q_OBJECT

public:
    enum class ActionButton { None, Edit, Remove };

    explicit LMFormatDataView(QWidget* parent = nullptr);
    ~LMFormatDataView() override;

    // Not owned; nullptr drops pointer messages and makes the cell unselected.
    LMFormatDataViewDelegate* delegate() const;
    void setDelegate(LMFormatDataViewDelegate* delegate);

    // The grey offered for cell borders; the list strokes it around the
    // keyboard's current cell.
    static QColor borderColor();
    // Colour of the hover and selection background.
    static QColor highlightColor();

    // The delegate's answer; false without a delegate.
    bool selected() const;
    bool mouseIn() const;

    void mouseEntered();
    void mouseExited();
    // Asks the pointer where it is instead of waiting for entry or exit, for
    // when the cell moved under a still pointer. Repaints on a change and tells
    // the delegate nothing. Returns whether the pointer is inside.
    bool resetMouseState();

    // What the item binds to its properties.
    void setImage(const QIcon& image);
    void setTitle(const QString& title);
    void setDescription(const QString& description);
    void setDescriptionVisible(bool visible);
    void setEditVisible(bool visible);
    void setRemoveVisible(bool visible);
    bool isEditVisible() const;
    bool isRemoveVisible() const;

    // Moves and sizes the cell over its row (in the coordinates of the widget
    // the cell belongs to) and lays its contents out at once, so that hit tests
    // and painting agree with what was placed.
    void placeAt(const QRect& rect);
    // The visible action button under pos (cell coordinates).
    ActionButton actionButtonAt(const QPoint& pos) const;
    // Where a visible action button lies in the cell; empty when it is hidden.
    QRect actionButtonGeometry(ActionButton button) const;
    // Shows a button pressed while the mouse is held on it (None releases).
    void setActionButtonDown(ActionButton button);
    QString actionButtonToolTip(ActionButton button) const;

    // Repaints the cell where its list shows it.
    void setNeedsDisplay();
    // The cell as drawn, at the given scale; kept until the cell changes, so a
    // list that scrolls redraws its cells without laying them out again.
    QPixmap snapshot(qreal devicePixelRatio) const;

    LMFormatInternationalizationMgr* lizationMgr() const;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void contentsChanged();

    struct Private;
    std::unique_ptr<Private> d;
};
