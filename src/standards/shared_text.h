// Keeps one of the texts that cells share: to recognise it in a cell, or to put it into many.
#pragma once

#include <string_view>
#include <utility>

#include "spread/control/formula/cells.h"

class SharedText {
  public:
    SharedText() = default;
    explicit SharedText(std::string_view text) : m_block(control::TextBlock::make(text)) {}
    static SharedText of(control::TextBlock* block) {
        ++block->references;
        SharedText text;
        text.m_block = block;
        return text;
    }
    SharedText(SharedText&& other) noexcept : m_block(std::exchange(other.m_block, nullptr)) {}
    SharedText& operator=(SharedText&& other) noexcept {
        std::swap(m_block, other.m_block);
        return *this;
    }
    ~SharedText() {
        if (m_block) control::TextBlock::release(m_block);
    }

    control::TextBlock* block() const { return m_block; }
    std::string_view view() const { return m_block ? m_block->view() : std::string_view(); }

  private:
    control::TextBlock* m_block = nullptr;
};
