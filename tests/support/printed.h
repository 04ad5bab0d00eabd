// A host that keeps what was printed on its command line.
#pragma once

#include <string>

#include "platform/host/host.h"

class Printed : public Host {
  public:
    void print(std::string_view printed) override { text += printed; }
    std::string text;
};
