#include "workbench/window/qt_window_system.h"

#include <QApplication>
#include <QClipboard>
#include <QEventLoop>
#include <QFontMetrics>
#include <QTimer>
#include <algorithm>
#include <utility>

#include "platform/window/dialog.h"
#include "spread/t_spread.h"
#include "workbench/window/control_views.h"
#include "workbench/window/dialog_font.h"
#include "workbench/window/dialog_style.h"
#include "workbench/window/key_event_filter.h"

namespace {

/// A widget of the program that a window stands for: the program moves and shows it.
class BorrowedView : public WindowView {
  public:
    using WindowView::WindowView;

  protected:
    void apply(WindowChange) override {}
};

/// Of its own, on the desktop; all others lie inside their parent's widget.
bool hasFrame(const CWnd& window) {
    const auto* dialog = dynamic_cast<const CDialog*>(&window);
    return dialog ? !dialog->isPage() : !window.parent();
}

}  // namespace

// Global, as the macro asks for; nothing else in the program would pull the icons in.
static void loadIcons() {
    Q_INIT_RESOURCE(bitmaps);
}

QtWindowSystem::QtWindowSystem() : m_keyEventFilter(std::make_unique<KeyEventFilter>(*this)) {
    loadIcons();
    QApplication::setStyle(new DialogStyle);
    // The icons are drawn for a light ground.
    QApplication::setPalette(QApplication::style()->standardPalette());
    QApplication::setFont(dialogFont());
    QCoreApplication::installTranslator(&m_words);
    const QFontMetrics metrics(dialogFont());
    const QString letters = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
    m_character = {metrics.horizontalAdvance(letters) / static_cast<int>(letters.size()),
                   metrics.height() + 1};
    m_before = WindowSystem::install(this);
}

QtWindowSystem::~QtWindowSystem() {
    WindowSystem::install(m_before);
    for (const auto& [window, view] : std::exchange(m_views, {})) view->leave();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void QtWindowSystem::showGridsWith(GridMaker make, GridSync sync) {
    m_makeGrid = std::move(make);
    m_syncGrid = std::move(sync);
}

QWidget* QtWindowSystem::makeGrid(TSpread& spread, QWidget* parent) const {
    return m_makeGrid ? m_makeGrid(spread, parent) : new QWidget(parent);
}

// --- which widget is whose ----------------------------------------------------------------------

WindowView* QtWindowSystem::viewOf(const CWnd& window) const {
    const auto found = m_views.find(&window);
    return found == m_views.end() ? nullptr : found->second;
}

QWidget* QtWindowSystem::widgetOf(const CWnd& window) const {
    const WindowView* view = viewOf(window);
    return view ? view->widget() : nullptr;
}

CWnd* QtWindowSystem::windowOf(const QWidget* widget) const {
    for (; widget; widget = widget->parentWidget())
        if (const auto found = m_windows.find(widget); found != m_windows.end())
            return found->second;
    return nullptr;
}

QWidget* QtWindowSystem::ownerOf(const CWnd* window) const {
    for (; window; window = window->parent())
        if (QWidget* widget = widgetOf(*window); widget && widget->isVisible())
            return widget->window();
    if (QWidget* modal = QApplication::activeModalWidget()) return modal;
    return QApplication::activeWindow();
}

void QtWindowSystem::add(CWnd& window, WindowView* view) {
    m_views[&window] = view;
    m_windows[view->widget()] = &window;
    if (!view->isBorrowed() && window.id() != 0)
        view->widget()->setObjectName(QString::number(window.id()));
}

void QtWindowSystem::represent(CWnd& window, QWidget& widget) {
    auto* view = new BorrowedView(*this, window, &widget);
    view->setBorrowed();
    add(window, view);
}

void QtWindowSystem::forget(const CWnd& window) {
    const auto found = m_views.find(&window);
    if (found == m_views.end()) return;
    m_windows.erase(found->second->widget());
    m_views.erase(found);
}

// --- widgets come and go ------------------------------------------------------------------------

// With their parents, the widgets of controls are made at once; a window with a frame of its own
// waits until it is shown.
void QtWindowSystem::created(CWnd& window) {
    if (window.parent() && !hasFrame(window) && viewOf(*window.parent())) realise(window);
}

void QtWindowSystem::realise(CWnd& window) {
    const CWnd* parent = window.parent();
    QWidget* around = parent ? widgetOf(*parent) : nullptr;
    if (!around && hasFrame(window)) around = ownerOf(parent);
    WindowView* view = makeView(*this, window, around);
    add(window, view);
    for (CWnd* child : window.children()) {
        if (!hasFrame(*child)) realise(*child);
    }
    // Labels stand before the controls that their marked letters lead to.
    for (CWnd* child : window.children()) {
        WindowView* label = dynamic_cast<CStatic*>(child) ? viewOf(*child) : nullptr;
        if (label) label->follow(WindowChange::text);
    }
    view->followAll();
    if (!view->widget()->isWindow()) view->follow(WindowChange::visible);
}

void QtWindowSystem::destroyed(CWnd& window) {
    endModalRuns(window, true);
    WindowView* view = viewOf(window);
    if (!view) return;
    forget(window);
    view->leave();
}

void QtWindowSystem::changed(CWnd& window, WindowChange change) {
    if (change == WindowChange::visible && window.isShown() && hasFrame(window) && !viewOf(window))
        realise(window);
    if (WindowView* view = viewOf(window)) view->follow(change);
    if (change == WindowChange::visible) endModalRuns(window, false);
    if (change == WindowChange::content && dynamic_cast<TSpread*>(&window)) syncGridsSoon();
}

void QtWindowSystem::bringToFront(CWnd& window) {
    QWidget* widget = widgetOf(*window.top());
    if (QWidget* own = widgetOf(window)) widget = own->window();
    if (!widget) return;
    widget->raise();
    widget->activateWindow();
}

// --- what users do ------------------------------------------------------------------------------

void QtWindowSystem::userActs(const std::function<void()>& action) {
    action();
    syncGrids();
}

bool QtWindowSystem::userPressesKey(CWnd& focused, const KeyMessage& key) {
    WindowView* view = viewOf(focused);
    if (!view) return false;
    const auto before = std::exchange(m_shiftOfMessage, key.shift);
    bool isUsed = false;
    view->act([&] { isUsed = dispatchKey(focused, key); });
    m_shiftOfMessage = before;
    return isUsed;
}

void QtWindowSystem::userMovesMouse(CWnd& window, const MouseMessage& message) {
    const auto before = std::exchange(m_shiftOfMessage, message.shift);
    dispatchMouse(window, message);
    m_shiftOfMessage = before;
}

void QtWindowSystem::focusByTab(CWnd& window) {
    const Qt::FocusReason before = std::exchange(m_focusReason, Qt::TabFocusReason);
    window.focus();
    m_focusReason = before;
}

void QtWindowSystem::syncGrids() {
    m_isSyncDue = false;
    if (!m_syncGrid) return;
    std::vector<QPointer<QWidget>> grids;
    for (const auto& [window, view] : m_views)
        if (view->isGrid() && view->widget()->isVisible()) grids.emplace_back(view->widget());
    for (const QPointer<QWidget>& grid : grids)
        if (grid) m_syncGrid(*grid);
}

// What changes now may be followed by more, and whoever changes it need not be done yet.
void QtWindowSystem::syncGridsSoon() {
    if (std::exchange(m_isSyncDue, true)) return;
    QTimer::singleShot(0, m_keyEventFilter.get(), [this] {
        if (m_isSyncDue) syncGrids();
    });
}

// --- modal dialogs ------------------------------------------------------------------------------

void QtWindowSystem::runModal(CDialog& dialog) {
    if (dialog.isEnded()) return;
    syncGrids();
    QEventLoop loop;
    m_modalRuns.push_back({&dialog, &loop});
    loop.exec(QEventLoop::DialogExec);
    m_modalRuns.pop_back();
}

void QtWindowSystem::endModalRuns(const CWnd& window, bool isGone) {
    for (const ModalRun& run : m_modalRuns)
        if (run.dialog == &window && (isGone || run.dialog->isEnded())) run.loop->quit();
}

// --- keyboard, clipboard, measures --------------------------------------------------------------

bool QtWindowSystem::isShiftHeld() {
    if (m_shiftOfMessage) return *m_shiftOfMessage;
    return QGuiApplication::queryKeyboardModifiers().testFlag(Qt::ShiftModifier);
}

void QtWindowSystem::setClipboardText(std::string_view text) {
    QGuiApplication::clipboard()->setText(toQt(text));
}

int QtWindowSystem::textWidth(std::string_view text) {
    return QFontMetrics(dialogFont()).horizontalAdvance(toQt(text));
}

// --- time ---------------------------------------------------------------------------------------

int QtWindowSystem::startTimer(int milliseconds, TimerCall call) {
    return m_timers.start(milliseconds, [this, call = std::move(call)](int timer) {
        userActs([&] { call(timer); });
    });
}

bool QtWindowSystem::killTimer(int timer) {
    return m_timers.kill(timer);
}
