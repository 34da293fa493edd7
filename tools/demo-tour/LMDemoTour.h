// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QString>

#include "ILMFormatNode.h"
#include "ILMFormatPreset.h"

#include <memory>
#include <string>

class LMDemoHostWindow;
class QAbstractItemView;

// The scripted walk through the popup that `make demo` runs on a machine without
// a display: it drives the demo host like a user would (clicks, typing, the
// pointer resting over a preset) and writes a PNG of the screen at every step.
class LMDemoTour : public QObject {
    Q_OBJECT

public:
    LMDemoTour(std::string cataloguePath, QString outputDir, bool convert);
    ~LMDemoTour() override;

    // Runs every step; false (with a message on stderr) when a step fails.
    bool run();
    // Instead of the tour: the popup on a catalogue of twelve categories, written
    // from the catalogue's own, its tab strip scrolled by the arrows and the keys.
    bool runTwelveCategories();

private:
    bool shoot(const QString& name);
    bool check(bool condition, const char* what);
    void settle();
    void clickTab(int index);
    void clickRow(QAbstractItemView* view, int row);
    void hoverRow(QAbstractItemView* view, int row);
    QAbstractItemView* categoryPresetList(int category) const;
    QAbstractItemView* customPresetList() const;
    void seedCustomPresets();
    bool writeTwelveCategories(const QString& path) const;
    bool popupSteps();
    bool choiceSteps();
    bool editorSteps();
    bool shootEditor(std::shared_ptr<Lumeran::ILMFormatPreset> preset,
                     std::shared_ptr<const Lumeran::ILMFormatNode> node, const QString& name);
    bool managerSteps();
    bool conversionSteps();
    bool darkSteps();
    bool unavailableSteps();

    std::string m_cataloguePath;
    QString m_outputDir;
    std::unique_ptr<LMDemoHostWindow> m_host;
    bool m_convert;
    int m_shots = 0;
};
