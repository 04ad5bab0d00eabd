// What a user sees first: the libraries used before, and the way to another one.
#pragma once

#include <QWidget>
#include <functional>
#include <string>
#include <vector>

class StartPage : public QWidget {
  public:
    using Opener = std::function<void(const std::string& folder)>;

    /// `open` gets a machine path (UTF-8), or the empty text to ask for one.
    StartPage(const std::vector<std::string>& recent, Opener open, QWidget* parent = nullptr);
};
