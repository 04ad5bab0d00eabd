// All functions of the engine by family, with their arguments and what they give; one is chosen to
// be put into a formula.
#pragma once

#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>

class FunctionDialog : public QDialog {
  public:
    explicit FunctionDialog(QWidget* parent);

    /// Upper case; empty while none is chosen.
    QString chosen() const;
    QLineEdit& search() const { return *m_search; }
    QListWidget& names() const { return *m_names; }
    void accept() override;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void fill();
    void explain();

    QComboBox* m_family;
    QLineEdit* m_search;
    QListWidget* m_names;
    QLabel* m_syntax;
    QLabel* m_summary;
};
