// The date of the print.
#include "print/page_title.h"

#include "core/weekdays.h"

namespace navarun {

std::string print_date(Date today) {
    std::string told{"Imprimé le: "};
    return told.append(weekday(weekday_of(today)).name).append(" ").append(write_date(today));
}

}  // namespace navarun
