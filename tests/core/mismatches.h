// The differences that a sweep over a whole domain finds: counted, the first few told.
#pragma once

#include <ostream>
#include <sstream>
#include <string>

namespace navarun::test {

class Mismatches {
  public:
    /// Notes one difference, told by `parts` one after the other.
    template <typename... Parts>
    void note(Parts const&... parts) {
        if (++m_count > told_at_most) return;
        std::ostringstream line;
        (line << ... << parts);
        m_told += "\n  " + line.str();
    }

    int count() const { return m_count; }

    friend std::ostream& operator<<(std::ostream& out, Mismatches const& mismatches) {
        return out << mismatches.m_count
                   << " differences, the first of them:" << mismatches.m_told;
    }

  private:
    static constexpr int told_at_most = 8;
    int m_count = 0;
    std::string m_told;
};

}  // namespace navarun::test
