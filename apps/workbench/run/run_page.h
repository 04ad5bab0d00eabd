// The page of one standard: a form for its inputs, its results, and the calculation behind them,
// all brought up to date while the user types.
#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QSplitter>
#include <QTableWidget>
#include <functional>
#include <map>
#include <memory>

#include "workbench/run/calculation_model.h"
#include "workbench/run/run_session.h"

class RunPage : public QWidget {
  public:
    explicit RunPage(std::unique_ptr<RunSession> session, QWidget* parent = nullptr);

    const RunSession& session() const { return *m_session; }
    /// The editor of an input, for tests and shortcuts; null when there is none.
    QWidget* editor(const QString& input) const;
    /// Windows-1252 results as shown.
    QString result(const QString& output) const;
    const CalculationModel& trace() const { return m_model; }
    QString message() const { return m_message->text(); }

    /// As ".html" or, for that extension, ".pdf". False, with the reason told, when it cannot be
    /// written.
    bool exportReport(const QString& path, const QString& author);
    void setAuthor(QString author) { m_author = std::move(author); }
    /// Sizes came, went or have other values: they are offered, and the standard runs again.
    void sectionsChanged();
    /// Loads the standard again when it was changed on disk; inputs keep what was typed.
    void followFile();
    void setSheetOpener(std::function<void(const Vor_String&)> opener) {
        m_sheetOpener = std::move(opener);
    }

  protected:
    void showEvent(QShowEvent* event) override;

  private:
    void follow();
    void build();
    void noteText(const std::string& input, QWidget& editor, const QString& text);
    QWidget* makeHeading();
    QWidget* makeForm();
    QWidget* makeEditor(const runs::DeclaredVariable& input);
    QWidget* makeResults();
    void take(const std::string& input, QWidget& editor, const QString& text);
    void update();
    void showMessages();
    void askForExport();
    void pickSection(const QString& input);

    std::unique_ptr<RunSession> m_session;
    std::map<QString, QWidget*> m_editors;
    QTableWidget* m_results = nullptr;
    QLabel* m_message = nullptr;
    CalculationModel m_model;
    std::map<QString, QString> m_refusals;  // by input
    QStringList m_notice;  // that the standard was loaded again, until the next key
    QWidget* m_heading = nullptr;
    QSplitter* m_left = nullptr;  // the form above the results
    QString m_author;
    std::function<void(const Vor_String&)> m_sheetOpener;
};
