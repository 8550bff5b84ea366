// Loaded into a Qt program as a generic plugin: reports when its first window has been painted. Any program
// can be asked in the same way without knowing of it.

#include <QCoreApplication>
#include <QEvent>
#include <QFile>
#include <QGenericPlugin>
#include <QTimer>

#include <chrono>

namespace {

class FirstPaint : public QObject
{
public:
    FirstPaint() { QCoreApplication::instance()->installEventFilter(this); }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Paint && watched->isWidgetType()) {
            QCoreApplication::instance()->removeEventFilter(this);
            // What is painted in this turn reaches the screen with it.
            QTimer::singleShot(0, this, report);
        }
        return false;
    }

private:
    /// Nanoseconds of the clock that the starter has read too.
    static void report()
    {
        QFile file(qEnvironmentVariable("FIRST_PAINT_REPORT"));
        if (file.open(QIODevice::WriteOnly)) {
            file.write(QByteArray::number(
                qint64{std::chrono::steady_clock::now().time_since_epoch() / std::chrono::nanoseconds(1)}));
        }
    }
};

class FirstPaintPlugin : public QGenericPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "org.qt-project.Qt.QGenericPluginFactoryInterface" FILE "first_paint_probe.json")

public:
    QObject* create(const QString& /*name*/, const QString& /*parameters*/) override
    {
        return new FirstPaint;
    }
};

} // namespace

#include "first_paint_probe.moc"
