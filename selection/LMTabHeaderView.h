// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QList>
#include <QRect>
#include <QWidget>

#include <cstddef>
#include <memory>

class LMFormatInternationalizationMgr;
class LMTabButton;
class LMTabHeaderViewDelegate;
class QAbstractButton;
class QIcon;
class QPushButton;
class QString;

// The strip of tabs along the top of the format popup. Tabs are push buttons
// standing side by side on the strip's bottom edge at a fixed pitch, drawn by
// LMTabButtonCell; a one-point rule runs along that edge under them. The strip
// keeps which tab is selected and tells its delegate when the user picks another
// one. Titles are localization keys, shown in the current language and
// re-translated when it changes; a tab's tool tip adds the keys that switch tabs.
//
// When the tabs need more room than the strip has beside what stands at its
// right end (the search field), the tabs scroll: two arrow buttons appear at the
// end of the tabs' area, the mouse wheel scrolls too, and the selected tab is
// always scrolled into view. Tabs keep their size and pitch; what lies outside
// the area is clipped, never squeezed.
//
// Indexes follow the buttons' order. Removing a tab neither moves the others nor
// renumbers them (a gap stays until the next addition or insertion arranges the
// strip again), and neither removing nor inserting adjusts the selected index.
class LMTabHeaderView : public QWidget {
    Q_OBJECT

public:
    // Left inset of the first tab.
    static constexpr double offsetX = 10.0;
    // Width of a tab and distance between the left edges of neighbouring tabs.
    static constexpr double defWidth = 97.0;
    // Height of a tab.
    static constexpr double defHeight = 27.0;

    explicit LMTabHeaderView(QWidget* parent = nullptr);
    ~LMTabHeaderView() override;

    // Grey of the rule under the tabs and of the tabs' borders.
    static QColor borderColor();

    LMFormatInternationalizationMgr* lizationMgr() const;

    // Receiver of the selection messages; not owned, may be null.
    LMTabHeaderViewDelegate* delegate() const;
    void setDelegate(LMTabHeaderViewDelegate* delegate);

    // Appends a tab titled with the translation of titleKey; a null image makes
    // a text-only tab.
    void addTab(const QString& titleKey, const QIcon& image);
    // Inserts a tab before the tab now at index; at or past the end it appends.
    void insertTab(const QString& titleKey, const QIcon& image, std::size_t index);
    // Removes the tab at index; an index past the end is ignored.
    void removeTabAtIndex(std::size_t index);
    // Removes every tab; the selected index keeps its value.
    void clearTab();
    std::size_t countOfTab() const;

    std::size_t indexOfSelected() const;
    // Selects the tab at index without telling the delegate; an index at or past
    // the end changes nothing.
    void setIndexOfSelected(std::size_t index);
    // Selects the tab at index as a click on it does, telling the delegate
    // before and after; the selected tab or an index past the end changes
    // nothing.
    void selectTabByUser(std::size_t index);

    // The area the tabs sit in, which clips them as the strip scrolls.
    QWidget* tabArea() const;

    // Where tab index stands in the strip's coordinates, scrolled.
    QRect frameOfTabButton(std::size_t index) const;

    // Width at the strip's right end kept free of tabs and arrows for what
    // stands there (the popup's search field).
    int trailingReserve() const;
    void setTrailingReserve(int width);
    // The part of the strip in which tabs are seen; a tab is drawn only inside it.
    QRect visibleTabArea() const;
    // How far the tabs are scrolled to the left, in points; 0 when they fit.
    int scrollOffset() const;
    // Scrolls so that the tab at index lies wholly inside visibleTabArea().
    void ensureTabVisible(std::size_t index);
    // The buttons that scroll the tabs by one tab; hidden while the tabs fit.
    QAbstractButton* scrollLeftButton() const;
    QAbstractButton* scrollRightButton() const;
    // Puts every tab at its index's frame and numbers it with that index.
    void arrangeTabButtons();

    // The tabs in order.
    const QList<QPushButton*>& tabButtons() const;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    // Left and Right on a focused tab select its neighbour, which takes the focus.
    void keyPressEvent(QKeyEvent* event) override;
    // The wheel, either way, scrolls the tabs when they do not fit.
    void wheelEvent(QWheelEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    LMTabButton* createButton(const QString& titleKey, const QIcon& image);
    void tabButtonClicked(LMTabButton* sender);
    void languageDidChange();
    void scrollTo(int offset);
    void updateScrolling();
    int contentRight() const;

    struct Private;
    std::unique_ptr<Private> d;
};
