#include "workbench/grid/calculation_stop.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QPointer>
#include <QProgressDialog>
#include <QTimer>
#include <memory>

#include "core_api/texts/texts.h"
#include "platform/host/host.h"
#include "spread/control/stop_calculation.h"
#include "workbench/window/ui_text.h"

namespace {

constexpr int sayCalculating = 9210, sayStop = 9211, sayStopped = 9212;
constexpr qint64 patience = 1000;  // milliseconds until the window is shown
constexpr qint64 pause = 500;      // without a question: another calculation
constexpr int closesAfter = 100;

/// While sheets calculate nothing but the window itself may react: a timer or a key elsewhere
/// could change what is being calculated.
class OnlyFor : public QObject {
  public:
    explicit OnlyFor(QWidget& window) : m_window(window) { qApp->installEventFilter(this); }

    bool eventFilter(QObject* object, QEvent* event) override {
        const auto* widget = qobject_cast<QWidget*>(object);
        const bool isOfWindow = object == &m_window || (widget && m_window.isAncestorOf(widget));
        return event->type() == QEvent::Timer && !isOfWindow;
    }

  private:
    QWidget& m_window;
};

class CalculationWindow {
  public:
    CalculationWindow() = default;
    CalculationWindow(const CalculationWindow&) = delete;
    CalculationWindow& operator=(const CalculationWindow&) = delete;
    ~CalculationWindow() { delete m_window; }

    bool mustStop() {
        const bool goesOn = m_lastQuestion.isValid() && m_lastQuestion.elapsed() < pause;
        if (!goesOn) m_begin.start();
        m_lastQuestion.start();
        if (m_begin.elapsed() < patience) return false;
        if (!m_window) open();
        {
            const OnlyFor only(*m_window);
            QCoreApplication::processEvents(QEventLoop::ExcludeSocketNotifiers);
        }
        m_lastQuestion.start();
        if (!m_window || !m_window->wasCanceled()) return false;
        delete m_window;
        m_lastQuestion.invalidate();
        acutPrint(dialString(sayStopped).str() + "\n");
        return true;
    }

  private:
    // Nobody tells when a calculation is done: the window goes as soon as events are handled again,
    // or before with the window above it.
    void open() {
        m_window = new QProgressDialog(uiText(sayCalculating), uiText(sayStop), 0, 0,
                                       QApplication::activeWindow());
        m_window->setWindowModality(Qt::ApplicationModal);
        m_window->setMinimumDuration(0);
        m_window->show();
        QTimer::singleShot(closesAfter, m_window, &QObject::deleteLater);
    }

    QElapsedTimer m_begin, m_lastQuestion;
    QPointer<QProgressDialog> m_window;
};

}  // namespace

void offerToStopCalculations() {
    control::setStopCalculation(
        [window = std::make_shared<CalculationWindow>()] { return window->mustStop(); });
}
