#include "cli/changing.h"

#include "cli/output.h"
#include "cli/results.h"

namespace Cli {

int changeFile(const QString& fileName, const std::function<int()>& change,
               Operations::Others others)
{
    int status = 0;
    QString error;
    HeldComplaints complaints;
    const auto attempt = [&] {
        complaints.forget();
        status = change();
    };
    return Operations::changeAsOne(fileName, others, attempt, &error) ? status : notDone(error);
}

}  // namespace Cli
