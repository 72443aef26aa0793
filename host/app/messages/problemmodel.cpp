#include "app/messages/problemmodel.h"

#include <QIcon>

#include <algorithm>

// Problems are stored per file, and files are sorted by name. `m_starts` has the first row of each
// file, so that a row is found by binary search. It is computed on demand and cleared by each
// change.
//
// A new list of a file is compared with the old one from both ends. Views get the smallest
// insertion or removal, and keep selection and scroll position.

namespace App {

using Family::Problem;
using Family::Problems;

namespace {

const char* const icons[] = {":/icons/icons/error.png", ":/icons/icons/warn.png",
                             ":/icons/icons/warn.png"};

}  // namespace

ProblemModel::ProblemModel(QObject* parent) : QAbstractListModel(parent) {}

QVector<ProblemModel::File>::iterator ProblemModel::find(const QString& file)
{
    return std::lower_bound(m_files.begin(), m_files.end(), file,
                            [](const File& a, const QString& b) { return a.name < b; });
}

const QVector<int>& ProblemModel::starts() const
{
    if (m_starts.isEmpty()) {
        m_starts.append(0);
        for (const File& file : m_files) {
            m_starts.append(m_starts.last() + file.problems.size());
        }
    }
    return m_starts;
}

void ProblemModel::setProblems(const QString& file, const Problems& problems)
{
    auto found = find(file);
    if (found == m_files.end() || found->name != file) {
        if (problems.isEmpty()) {
            return;
        }
        found = m_files.insert(found, {file, {}});
        m_starts.clear();
    }
    const int place = int(found - m_files.begin());
    Family::ProblemTally before;
    before.add(found->problems);
    m_count.add(problems);
    m_count.errors -= before.errors;
    m_count.warnings -= before.warnings;
    replace(&*found, starts().at(place), problems);
    if (problems.isEmpty()) {
        m_files.remove(place);
        m_starts.clear();
    }
}

/// Keeps the equal rows at both ends, changes rows in the middle that have a counterpart, and
/// inserts or removes the rest.
void ProblemModel::replace(File* file, int first, const Problems& problems)
{
    const Problems& old = file->problems;
    const int most = std::min(old.size(), problems.size());
    const auto head =
        int(std::mismatch(old.begin(), old.begin() + most, problems.begin()).first - old.begin());
    int tail = 0;
    while (tail < most - head &&
           old[old.size() - 1 - tail] == problems[problems.size() - 1 - tail]) {
        ++tail;
    }
    const int kept = most - tail;  // equal rows at the start, and rows to change
    const int oldEnd = old.size() - tail;
    const int newEnd = problems.size() - tail;
    if (oldEnd > kept) {
        beginRemoveRows({}, first + kept, first + oldEnd - 1);
        file->problems.remove(kept, oldEnd - kept);
        m_starts.clear();
        endRemoveRows();
    } else if (newEnd > kept) {
        beginInsertRows({}, first + kept, first + newEnd - 1);
        file->problems = file->problems.mid(0, kept) + problems.mid(kept, newEnd - kept) +
                         file->problems.mid(kept);
        m_starts.clear();
        endInsertRows();
    }
    file->problems = problems;
    if (kept > head) {
        emit dataChanged(index(first + head), index(first + kept - 1));
    }
}

const Problem* ProblemModel::problemAt(int row) const
{
    if (row < 0 || row >= starts().last()) {
        return nullptr;
    }
    const auto next = std::upper_bound(m_starts.cbegin(), m_starts.cend(), row);
    const int file = int(next - m_starts.cbegin()) - 1;
    return &m_files.at(file).problems.at(row - m_starts.at(file));
}

int ProblemModel::firstRowOf(const QString& file) const
{
    const auto found = const_cast<ProblemModel*>(this)->find(file);
    return found == m_files.end() || found->name != file
               ? -1
               : starts().at(int(found - m_files.begin()));
}

int ProblemModel::rowAt(const QString& file, int line) const
{
    const int first = firstRowOf(file);
    if (first < 0) {
        return -1;
    }
    const Problems& problems = const_cast<ProblemModel*>(this)->find(file)->problems;
    const auto found =
        std::lower_bound(problems.begin(), problems.end(), line,
                         [](const Problem& problem, int wanted) { return problem.line < wanted; });
    return first + std::min(int(found - problems.begin()), problems.size() - 1);
}

int ProblemModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : starts().last();
}

QVariant ProblemModel::data(const QModelIndex& index, int role) const
{
    const Problem* problem = index.isValid() ? problemAt(index.row()) : nullptr;
    if (!problem) {
        return {};
    }
    switch (role) {
    case Qt::DisplayRole:
        return QStringLiteral("%1 (%2) : %3")
            .arg(problem->file, QString::number(problem->line), problem->text);
    case Qt::DecorationRole:
        return QIcon(QLatin1String(icons[int(problem->level)]));
    default:
        return {};
    }
}

}  // namespace App
