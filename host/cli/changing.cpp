#include "changing.h"

#include "output.h"
#include "results.h"

namespace Cli {

int changeFile(const QString& fileName, const std::function<int()>& change, Family::Others others)
{
    int status = 0;
    QString error;
    HeldComplaints complaints;
    const auto attempt = [&] {
        complaints.forget();
        status = change();
    };
    return Family::changeAsOne(fileName, others, attempt, &error) ? status : notDone(error);
}

}  // namespace Cli
