// What a user sees first: the libraries used before, and the way to another one.
#pragma once

#include <QWidget>
#include <functional>
#include <string>
#include <vector>

class QVBoxLayout;

class StartPage : public QWidget {
  public:
    using Opener = std::function<void(const std::string& folder)>;

    /// `open` gets a machine path (UTF-8), or the empty text to ask for one.
    StartPage(const std::vector<std::string>& recent, Opener open, QWidget* parent = nullptr);
    void showRecent(const std::vector<std::string>& recent);

  private:
    QWidget* linkTo(const std::string& folder) const;

    Opener m_open;
    QVBoxLayout* m_recent;
};
