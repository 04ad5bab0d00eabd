// A way for an editor that keeps an undo history to hear of the cells that something else is about
// to change.
#pragma once

class CellChangeObserver {
  public:
    virtual ~CellChangeObserver() = default;
    /// Cells will change until end(), as one step; `titleText` is the number of its name.
    virtual void begin(int titleText) = 0;
    virtual void beforeChange(int col, int row) = 0;
    virtual void end() = 0;
};

/// The changes of one scope; does nothing without an observer.
class CellChanges {
  public:
    CellChanges(CellChangeObserver* observer, int titleText) : m_observer(observer) {
        if (m_observer) m_observer->begin(titleText);
    }
    ~CellChanges() {
        if (m_observer) m_observer->end();
    }
    CellChanges(const CellChanges&) = delete;
    CellChanges& operator=(const CellChanges&) = delete;

    void before(int col, int row) {
        if (m_observer) m_observer->beforeChange(col, row);
    }

  private:
    CellChangeObserver* m_observer;
};
