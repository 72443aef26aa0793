#include "support/testgrammar.h"
#include "support/testtable.h"

#include <QDate>
#include <QMap>
#include <QRandomGenerator>
#include <QtTest>

using namespace Zorv;

namespace {

constexpr quint32 Seed = 4711;

class TestRoot : public RootCode
{
public:
    TestRoot() : RootCode(5) {}
    void release() override {}
};

/// The rules of chain and tree, on plain lists and by plain walks.
class SlowModel
{
public:
    explicit SlowModel(CodeNode* root) : chain({root}) { lists[root]; }

    void add(CodeNode* node, int behind, const QList<CodeNode*>& adopted)
    {
        chain.insert(behind + 1, node);
        lists[node];
        if (node->type() == CodeNode::Group || node->type() == CodeNode::Animation) {
            int place = 0;
            for (int i = 1; i <= behind; ++i) {
                place += parents.value(chain.at(i)) == chain.first() ? 1 : 0;
            }
            setParent(node, chain.first(), place);
            for (CodeNode* child : adopted) {
                setParent(child, node, -1);
            }
            detachFrames(node, behind + 1);
            return;
        }
        int count = 0;
        for (int i = behind; i >= 0; --i) {
            const auto type = chain.at(i)->type();
            const bool isValue = node->type() == CodeNode::Value;
            if (type == (isValue ? CodeNode::Group : CodeNode::Animation)) {
                setParent(node, chain.at(i), count);
                return;
            }
            if (type == (isValue ? CodeNode::Animation : CodeNode::Group)) {
                return;
            }
            count += type == node->type() ? 1 : 0;
        }
    }

    /// The nodes behind `place` that a new head there takes over.
    QList<CodeNode*> adoptedBy(CodeNode::Type type, int place) const
    {
        QList<CodeNode*> result;
        const auto wanted = type == CodeNode::Group ? CodeNode::Value : CodeNode::Frame;
        for (int i = place; i < chain.size(); ++i) {
            if (chain.at(i)->type() & (CodeNode::Group | CodeNode::Animation)) {
                break;
            }
            if (chain.at(i)->type() == wanted) {
                result.append(chain.at(i));
            }
        }
        return result;
    }

    void remove(CodeNode* node)
    {
        const int place = chain.indexOf(node);
        QList<CodeNode*> children = lists.value(node);
        if (node->type() == CodeNode::Group) {
            std::reverse(children.begin(), children.end());
        }
        CodeNode* heir = heirOf(node, place);
        for (CodeNode* child : qAsConst(children)) {
            setParent(child, heir, -1);
        }
        setParent(node, nullptr, 0);
        chain.removeAt(place);
        lists.remove(node);
    }

    QList<CodeNode*> chain;
    QMap<CodeNode*, QList<CodeNode*>> lists;
    QMap<CodeNode*, CodeNode*> parents;

private:
    void setParent(CodeNode* child, CodeNode* parent, int place)
    {
        if (CodeNode* old = parents.value(child)) {
            lists[old].removeAll(child);
        }
        parents.remove(child);
        if (parent) {
            QList<CodeNode*>& list = lists[parent];
            list.insert(place < 0 || place > list.size() ? list.size() : place, child);
            parents[child] = parent;
        }
    }

    void detachFrames(const CodeNode* node, int place)
    {
        if (node->type() != CodeNode::Group) {
            return;
        }
        for (int i = place + 1; i < chain.size(); ++i) {
            if (chain.at(i)->type() & (CodeNode::Group | CodeNode::Animation)) {
                return;
            }
            if (chain.at(i)->type() == CodeNode::Frame) {
                setParent(chain.at(i), nullptr, 0);
            }
        }
    }

    CodeNode* heirOf(const CodeNode* node, int place) const
    {
        const bool isGroup = node->type() == CodeNode::Group;
        for (int i = place - 1; i >= 0; --i) {
            const auto type = chain.at(i)->type();
            if (type == node->type()) {
                return chain.at(i);
            }
            if ((type & (CodeNode::Group | CodeNode::Animation)) ||
                (isGroup && type == CodeNode::Frame)) {
                return nullptr;
            }
        }
        return nullptr;
    }
};

CodeNode* make(int kind, CodeNode* previous)
{
    switch (kind) {
    case 0:
        return new TestGroup(previous, 1);
    case 1:
        return new TestAnimation(previous, QStringLiteral("x"));
    case 2:
        return new TestFrame(previous, QStringLiteral("-f"));
    default:
        return new TestValue(previous, QStringLiteral("a=1"));
    }
}

CodeNode::Type typeOf(int kind)
{
    return kind == 0   ? CodeNode::Group
           : kind == 1 ? CodeNode::Animation
           : kind == 2 ? CodeNode::Frame
                       : CodeNode::Value;
}

/// The walk along the chain as its rule says it.
CodeNode* walk(const SlowModel& model, int from, int step, CodeNode::Type type, unsigned mask)
{
    for (int i = from + step; i >= 0 && i < model.chain.size(); i += step) {
        if (model.chain.at(i)->type() == type) {
            return model.chain.at(i);
        }
        if (model.chain.at(i)->type() & mask) {
            return nullptr;
        }
    }
    return nullptr;
}

}  // namespace

class TestCodeNode : public QObject
{
    Q_OBJECT

private slots:
    void chainAndTree();
    void convert_data();
    void convert();
    void write_data();
    void write();
    void read_data();
    void read();
    void namedProperties();
};

void TestCodeNode::chainAndTree()
{
    qInfo("seed %u", Seed);
    QRandomGenerator random(Seed);
    TestRoot root;
    SlowModel model(&root);
    for (int step = 0; step < 3000; ++step) {
        if (model.chain.size() > 1 && random.bounded(100) < (step < 2000 ? 40 : 60)) {
            CodeNode* node = model.chain.at(1 + random.bounded(model.chain.size() - 1));
            model.remove(node);
            node->release();
        } else {
            const int behind = random.bounded(model.chain.size());
            const int kind = random.bounded(8);
            const auto adopted =
                kind < 2 ? model.adoptedBy(typeOf(kind), behind + 1) : QList<CodeNode*>();
            model.add(make(kind, model.chain.at(behind)), behind, adopted);
        }
        const int place = random.bounded(model.chain.size());
        const CodeNode* node = model.chain.at(place);
        const auto type = CodeNode::Type(1 << random.bounded(5));
        const auto mask = quint16(random.bounded(32));
        QCOMPARE(node->previous(type, mask), walk(model, place, -1, type, mask));
        QCOMPARE(node->next(type, mask), walk(model, place, 1, type, mask));
        const int other = random.bounded(model.chain.size());
        QCOMPARE(node->precedes(model.chain.at(other)), place < other);
        QCOMPARE(node->parentCode(),
                 static_cast<ParentCode*>(model.parents.value(model.chain.at(place))));
        if (const auto* parent = dynamic_cast<const ParentCode*>(node)) {
            const QList<CodeNode*> children = model.lists.value(model.chain.at(place));
            QCOMPARE(parent->childCount(), children.size());
            for (int i = 0; i < children.size(); ++i) {
                QCOMPARE(parent->childAt(unsigned(i)), children.at(i));
                QCOMPARE(parent->childIndex(children.at(i)), i);
            }
        }
    }
    while (model.chain.size() > 1) {
        model.chain.takeLast()->release();
    }
    QCOMPARE(root.childCount(), 0);
}

void TestCodeNode::convert_data()
{
    columns<int, QVariant, QVariant>("type", "value", "result");
    const QVariantList reals{1.9, QStringLiteral("-2.9"), 7};
    row("text of a number", 3, QVariant(12), QVariant(QStringLiteral("12")));
    row("a date stays a text", 5, QVariant("x"), QVariant("x"));
    row("unsigned", 6, QVariant("12"), QVariant(12u));
    row("one becomes a list", 7, QVariant("12"), QVariant(QVariantList{12u}));
    row("a list stays", 7, QVariant(reals), QVariant(reals));
    row("a real stays a text", 8, QVariant("abc"), QVariant("abc"));
    row("a real point from a list is whole", 9, QVariant(reals), QVariant(QPoint(1, -2)));
    row("a real point from one", 9, QVariant(QVariantList{2.5}), QVariant(QPoint(2, 0)));
    row("a real point stays", 9, QVariant(QPointF(1.5, 2)), QVariant(QPointF(1.5, 2)));
    row("reals from one", 11, QVariant("1.5"), QVariant(QVariantList{1.5}));
    row("int", 13, QVariant("-3"), QVariant(-3));
    row("point from a list", 14, QVariant(QVariantList{4, "5"}), QVariant(QPoint(4, 5)));
    row("point from nothing", 14, QVariant(QVariantList()), QVariant(QPoint(0, 0)));
    row("ints from one", 17, QVariant("-3"), QVariant(QVariantList{-3}));
    row("unnamed type", 1, QVariant("x"), QVariant("x"));
}

void TestCodeNode::convert()
{
    const auto [type, value, result] = fetched<int, QVariant, QVariant>();
    TestRoot root;
    TestValue node(&root, ValueCode::Type(type), value);
    QCOMPARE(node.value(), result);
    QCOMPARE(node.value().userType(), result.userType());
}

void TestCodeNode::write_data()
{
    columns<QVariant, int, QVariant, QChar, QString>("stored", "type", "value", "separator",
                                                     "text");
    const QChar comma(',');
    row("a stored text wins", QVariant("s"), 13, QVariant(4), comma, "s");
    row("date", QVariant(1), 5, QVariant(QDate(2026, 2, 3)), comma, "2026-02-03");
    row("real point", QVariant(1), 9, QVariant(QPointF(1.5, -2)), comma, "1.5, -2");
    row("point without separator", QVariant(1), 14, QVariant(QPoint(3, 4)), QChar(), "3 4");
    row("list", QVariant(1), 10, QVariant(QVariantList{1.5, 2, "x"}), comma, "1.5, 2, x");
    row("unsigned", QVariant(1), 6, QVariant(7), comma, "7");
    row("other", QVariant(1), 13, QVariant(-7), comma, "-7");
}

void TestCodeNode::write()
{
    const auto [stored, type, value, separator, text] =
        fetched<QVariant, int, QVariant, QChar, QString>();
    TestRoot root;
    TestValue node(&root, ValueCode::Type(1), stored);
    QCOMPARE(node.asString(ValueCode::Type(type), value, separator), text);
}

void TestCodeNode::read_data()
{
    columns<int, QVariant, QVector<int>, QVector<double>, QPoint>("type", "value", "ints", "reals",
                                                                  "point");
    using Ints = QVector<int>;
    using Reals = QVector<double>;
    row("int", 13, QVariant(7), Ints{7}, Reals{7}, QPoint(7, 0));
    row("ints", 15, QVariant(QVariantList{1, 2, 3}), Ints{1, 2, 3}, Reals{1, 2, 3}, QPoint(1, 2));
    row("one int in a list", 15, QVariant(QVariantList{4}), Ints{4}, Reals{4}, QPoint(4, 0));
    row("a list in a real", 8, QVariant(QVariantList{1.5, 2}), Ints{0}, Reals{0, 1.5, 2},
        QPoint(0, 0));
    row("point", 14, QVariant(QPoint(5, 6)), Ints{}, Reals{}, QPoint(5, 6));
}

void TestCodeNode::read()
{
    const auto [type, value, ints, reals, point] =
        fetched<int, QVariant, QVector<int>, QVector<double>, QPoint>();
    TestRoot root;
    const TestValue node(&root, ValueCode::Type(type), value);
    QCOMPARE(node.asIntVector(), ints);
    QCOMPARE(node.asRealVector(), reals);
    QCOMPARE(node.asPoint(), point);
}

void TestCodeNode::namedProperties()
{
    TestRoot root;
    TestAnimation animation(&root, QStringLiteral("old"));
    animation.setProperty(QStringLiteral("DisplayName"), QStringLiteral("shown"));
    QCOMPARE(animation.property(QStringLiteral("Name")), QVariant("old"));
    animation.setProperty(QStringLiteral("Name"), QStringLiteral("new"));
    QCOMPARE(animation.property(QStringLiteral("DisplayName")), QVariant("new"));
    QCOMPARE(animation.propertyNames(),
             QStringList({QStringLiteral("DisplayName"), QStringLiteral("Name"),
                          QStringLiteral("Identifier")}));
}

QTEST_MAIN(TestCodeNode)
#include "tst_codenode.moc"
