#pragma once

#include <QObject>
#include <QSet>

#include <atomic>

// Whether any live preview is on screen. Previews report their show and hide events here; the
// controller reads it on the library's thread to drop preview frames that nothing would show,
// and hears when a preview appears so that it can bring the preview up to date at once.
class PreviewDemand : public QObject
{
    Q_OBJECT

public:
    static PreviewDemand& instance();

    // Any thread.
    bool isWanted() const { return m_wanted.load(std::memory_order_relaxed); }

    // GUI thread. A preview that goes away must report itself hidden.
    void setShown(const QObject* preview, bool shown);

signals:
    // The first preview came on screen.
    void wanted();

private:
    PreviewDemand() = default;

    QSet<const QObject*> m_shown;
    std::atomic<bool> m_wanted{false};
};
