#pragma once

#include "records/problems.h"

#include <string>

namespace tarvold::testing {

/// Problems for the message of a test, a line each; empty if there are none.
inline std::string listed(const std::vector<records::Problem> &problems)
{
    using namespace Qt::StringLiterals;
    QStringList texts;
    for (const records::Problem &problem : problems) {
        texts << u"%1: %2 [%3]"_s.arg(QString::number(problem.line + 1), problem.text,
                                      problem.repair);
    }
    return texts.join(u'\n').toStdString();
}

} // namespace tarvold::testing
