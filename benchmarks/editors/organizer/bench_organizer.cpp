// A list of 50,000 rows in the organizer beside a plain list view of the same model: what a
// change of one row costs until the view stands still again, and how often it asks for data.

#include "support/bench.h"
#include "support/testinterface.h"

#include "core/organizableobject.h"
#include "editors/organizer/organizereditor.h"

#include <QApplication>
#include <QListView>

#include <functional>
#include <string>

using namespace Zorv;

namespace {

constexpr int RowCount = 50000;
constexpr int Middle = RowCount / 2;
constexpr int CallLimit = 1000;
constexpr double TimeLimit = 0.05;

class Names : public OrganizableObject
{
public:
    Names()
    {
        for (int i = 0; i < RowCount; ++i) {
            m_names.append(QStringLiteral("Animation %1").arg(i));
        }
    }

    int rowCount(const QModelIndex& parent = {}) const override
    {
        return parent.isValid() ? 0 : m_names.size();
    }

    QVariant data(const QModelIndex& index, int role) const override
    {
        ++calls;
        return role == Qt::DisplayRole ? m_names.value(index.row()) : QVariant();
    }

    void move(unsigned from, unsigned to) override
    {
        if (beginMoveRows({}, int(from), int(from), {}, int(to + (from < to ? 1 : 0)))) {
            m_names.move(int(from), int(to));
            endMoveRows();
        }
    }

    void beginChange(const QString&) override {}
    void endChange() override {}
    void autoOrganize() override {}

    void remove(unsigned index) override
    {
        beginRemoveRows({}, int(index), int(index));
        m_names.removeAt(int(index));
        endRemoveRows();
    }

    void insert(int row)
    {
        beginInsertRows({}, row, row);
        m_names.insert(row, QStringLiteral("New"));
        endInsertRows();
    }

    void rename(int row)
    {
        m_names[row] += QLatin1Char('x');
        emit dataChanged(index(row), index(row));
    }

    mutable int calls = 0;

private:
    QStringList m_names;
};

struct Cost
{
    double time;
    int calls;
};

/// The view stands on the middle rows, where the changes are.
Cost costOf(QListView* view, Names& names, int rounds, const std::function<void()>& change)
{
    const auto settle = [view] {
        view->visualRect(view->model()->index(Middle, 0));
        QCoreApplication::processEvents();
        QCoreApplication::processEvents();
    };
    view->scrollTo(view->model()->index(Middle, 0), QAbstractItemView::PositionAtCenter);
    settle();
    int most = 0;
    const double time = Bench::median(rounds, [&] {
        names.calls = 0;
        change();
        settle();
        most = std::max(most, names.calls);
    });
    return {time, most};
}

}  // namespace

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    TestInterface host;
    OrganizerEditor organizer;
    auto* view = qobject_cast<QListView*>(host.controls.value(QStringLiteral("org_list")));
    host.controlsWindow()->resize(400, 900);
    host.controlsWindow()->show();
    QListView plain;
    plain.resize(400, 900);
    plain.show();

    Names names;
    const struct
    {
        const char* name;
        std::function<void()> change;
    } changes[] = {
        {"insert", [&] { names.insert(Middle); }},
        {"remove", [&] { names.remove(Middle); }},
        {"move", [&] { names.move(Middle + 2, Middle); }},
        {"dataChanged", [&] { names.rename(Middle); }},
    };
    for (const auto& row : changes) {
        plain.setModel(nullptr);
        organizer.setObject(&names);
        const Cost ours = costOf(view, names, 51, row.change);
        organizer.setObject(nullptr);
        plain.setModel(&names);
        const Cost peer = costOf(&plain, names, 5, row.change);
        const auto label = [&row](const char* what) {
            return "50,000 rows, " + std::string(row.name) + ": " + what;
        };
        Bench::ratio(label("calls of data() / 1,000").c_str(), ours.calls, CallLimit, 1);
        Bench::figure(label("organizer").c_str(), ours.time, "ms");
        Bench::ratio(label("organizer / plain list view").c_str(), ours.time, peer.time, TimeLimit);
    }
    return 0;
}
