// The words of Qt's own dialogs in the working language, as it is when they are opened. Those that
// our users meet most have text numbers; the others come from Qt's catalogue where one is
// installed, else they stay English.
#pragma once

#include <QTranslator>
#include <optional>

#include "core_api/settings.h"

class QtWords : public QTranslator {
  public:
    bool isEmpty() const override { return false; }
    QString translate(const char* context, const char* source, const char* disambiguation,
                      int count) const override;

  private:
    const QTranslator& catalogue() const;

    mutable QTranslator m_catalogue;
    mutable std::optional<Language> m_loaded;
};
