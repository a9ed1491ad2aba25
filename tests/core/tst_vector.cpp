// Vector and its text form; List runs through the same tables, being a sequence of its own type.
#include <kes/core/list.h>
#include <kes/core/vector.h>

#include <kestest.h>

#include <QtTest>

#include <algorithm>
#include <climits>
#include <iterator>
#include <locale>
#include <sstream>
#include <string>
#include <thread>
#include <utility>
#include <vector>

using kes::core::IntVector;
using kes::core::StringList;

namespace {

enum class Edit { Element, Reverse, Insert, InsertOwn, Erase, Append, Clear };

template <typename C>
typename C::value_type valueOf(int i)
{
    if constexpr (std::is_same_v<typename C::value_type, std::string>)
        return std::to_string(i);
    else
        return i;
}

template <typename C>
C make(const QVector<int>& ints)
{
    C c;
    for (int i : ints)
        c.append(valueOf<C>(i));
    return c;
}

template <typename C>
QByteArray describe(const C& c)
{
    std::ostringstream os;
    for (const auto& value : c)
        os << value << ' ';
    return QByteArray::fromStdString(os.str());
}

template <typename C>
void checkEdit(const QVector<int>& initial, Edit edit, int index, int count, const QVector<int>& expected)
{
    const C original = make<C>(initial);
    C c = original;
    // -1 in the table stands for the largest index there is.
    const std::size_t at = index < 0 ? SIZE_MAX : std::size_t(index);
    const std::size_t n = count < 0 ? SIZE_MAX : std::size_t(count);
    switch (edit) {
    case Edit::Element: c[at] = valueOf<C>(99); break;
    case Edit::Reverse: std::reverse(c.begin(), c.end()); break;
    case Edit::Insert: c.insert(at, valueOf<C>(99)); break;
    case Edit::InsertOwn: c.insert(at, std::as_const(c)[n]); break;
    case Edit::Erase: c.erase(at, n); break;
    case Edit::Append: c.append(valueOf<C>(99)); break;
    case Edit::Clear: c.clear(); break;
    }
    QCOMPARE(describe(c), describe(make<C>(expected)));
    QCOMPARE(describe(original), describe(make<C>(initial)));
}

// Grouping digits in threes; a text form written through it would read "1,234,567".
struct GroupingPunct : std::numpunct<char>
{
    char do_thousands_sep() const override { return ','; }
    std::string do_grouping() const override { return "\3"; }
};

} // namespace

Q_DECLARE_METATYPE(Edit)

class TestVector : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void copyTakenBeforeEditNeverChanges_data()
    {
        QTest::addColumn<QVector<int>>("initial");
        QTest::addColumn<Edit>("edit");
        QTest::addColumn<int>("index");
        QTest::addColumn<int>("count");
        QTest::addColumn<QVector<int>>("expected");
        const QVector<int> abc{1, 2, 3};
        const QVector<int> none;
        QTest::newRow("write element") << abc << Edit::Element << 0 << 0 << QVector<int>{99, 2, 3};
        QTest::newRow("reverse through iterators") << abc << Edit::Reverse << 0 << 0 << QVector<int>{3, 2, 1};
        QTest::newRow("insert at front") << abc << Edit::Insert << 0 << 0 << QVector<int>{99, 1, 2, 3};
        QTest::newRow("insert at largest index appends") << abc << Edit::Insert << -1 << 0 << QVector<int>{1, 2, 3, 99};
        QTest::newRow("insert into empty") << none << Edit::Insert << 5 << 0 << QVector<int>{99};
        QTest::newRow("insert own last element at front") << abc << Edit::InsertOwn << 0 << 2 << QVector<int>{3, 1, 2, 3};
        QTest::newRow("erase first") << abc << Edit::Erase << 0 << 1 << QVector<int>{2, 3};
        QTest::newRow("erase largest count") << abc << Edit::Erase << 1 << -1 << QVector<int>{1};
        QTest::newRow("erase past end ignored") << abc << Edit::Erase << 5 << 1 << abc;
        QTest::newRow("append") << abc << Edit::Append << 0 << 0 << QVector<int>{1, 2, 3, 99};
        QTest::newRow("append to empty") << none << Edit::Append << 0 << 0 << QVector<int>{99};
        QTest::newRow("clear") << abc << Edit::Clear << 0 << 0 << none;
    }

    void copyTakenBeforeEditNeverChanges()
    {
        QFETCH(QVector<int>, initial);
        QFETCH(Edit, edit);
        QFETCH(int, index);
        QFETCH(int, count);
        QFETCH(QVector<int>, expected);
        checkEdit<IntVector>(initial, edit, index, count, expected);
        checkEdit<StringList>(initial, edit, index, count, expected);
    }

    void storageSharedUntilFirstWrite()
    {
        IntVector a{1, 2, 3};
        const IntVector b = a;
        QVERIFY(a == b);
        QCOMPARE(a.constData(), b.constData());
        a[0] = 7;
        QVERIFY(a.constData() != b.constData());
        QVERIFY(a != b);
        QCOMPARE(b[0], 1);
        // Once unshared, further writes stay in place.
        const int* own = a.constData();
        a[1] = 8;
        QCOMPARE(a.constData(), own);
        QVERIFY(IntVector({1, 2}) != IntVector({1, 2, 3}));
    }

    void copiesOnManyThreadsLeaveOriginalAlone()
    {
        IntVector original{1, 2, 3};
        std::vector<std::thread> threads;
        for (int t = 0; t < 4; ++t) {
            threads.emplace_back([&original, t] {
                for (int i = 0; i < 20000; ++i)
                    IntVector(std::as_const(original))[0] = t;
            });
        }
        for (std::thread& thread : threads)
            thread.join();
        QVERIFY(original == IntVector({1, 2, 3}));
        // A miscounted reference would make this write copy the storage, or read freed memory.
        const int* own = original.constData();
        original[0] = 5;
        QCOMPARE(original.constData(), own);
    }

    void atPastEndThrows()
    {
        const IntVector values{1, 2, 3};
        QCOMPARE(values.at(2), 3);
        QVERIFY_EXCEPTION_THROWN(values.at(3), std::out_of_range);
        QVERIFY_EXCEPTION_THROWN(IntVector().at(0), std::out_of_range);
    }

    void readsTextForm_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QVector<int>>("values");
        QTest::addColumn<bool>("ok");
        QTest::addColumn<QByteArray>("rest");
        const QVector<int> none;
        QTest::newRow("blanks inside") << QByteArray("( 1 2 3 4 5 6 )") << QVector<int>{1, 2, 3, 4, 5, 6} << true << QByteArray();
        QTest::newRow("empty") << QByteArray("()") << none << true << QByteArray();
        QTest::newRow("trailing junk left unread") << QByteArray("(1 2) tail") << QVector<int>{1, 2} << true << QByteArray(" tail");
        QTest::newRow("junk value ends with 0") << QByteArray("(1 2 x 4)") << QVector<int>{1, 2, 0} << false << QByteArray("x 4)");
        QTest::newRow("missing close") << QByteArray("(1 2 3") << QVector<int>{1, 2, 3} << true << QByteArray();
        // The established reading: the character read at the end is taken for "not )".
        QTest::newRow("missing close, trailing blank") << QByteArray("(1 2 3 ") << QVector<int>{1, 2, 3, 0} << false << QByteArray();
        QTest::newRow("no opening parenthesis") << QByteArray("1 2 3") << none << false << QByteArray(" 2 3");
        QTest::newRow("empty input") << QByteArray() << none << false << QByteArray();
    }

    void readsTextForm()
    {
        QFETCH(QByteArray, text);
        QFETCH(QVector<int>, values);
        QFETCH(bool, ok);
        QFETCH(QByteArray, rest);
        IntVector target{42, 43};
        const IntVector sharedBefore = target;
        std::istringstream is(text.toStdString());
        is >> target;
        QCOMPARE(describe(target), describe(make<IntVector>(values)));
        QCOMPARE(!is.fail(), ok);
        QVERIFY(sharedBefore == IntVector({42, 43}));
        is.clear();
        QCOMPARE(QByteArray::fromStdString(std::string(std::istreambuf_iterator<char>(is), {})), rest);

        bool fromStringOk = !ok;
        QCOMPARE(describe(kes::core::fromString(text.toStdString(), &fromStringOk)), describe(target));
        QCOMPARE(fromStringOk, ok);
    }

    void writesTextFormThatReadsBack()
    {
        // The global locale groups digits; the text form must not.
        const std::locale previous = std::locale::global(std::locale(std::locale::classic(), new GroupingPunct));
        const auto restore = qScopeGuard([&] { std::locale::global(previous); });
        const IntVector values{0, 360, -1, 1234567, INT_MIN, INT_MAX};
        const std::string text = "(0 360 -1 1234567 -2147483648 2147483647)";
        QCOMPARE(kes::core::toString(values), text);
        QCOMPARE(kes::core::toString(IntVector()), std::string("()"));
        bool ok = false;
        QVERIFY(kes::core::fromString(text, &ok) == values);
        QVERIFY(ok);
    }
};

KES_TEST_MAIN(TestVector)
#include "tst_vector.moc"
