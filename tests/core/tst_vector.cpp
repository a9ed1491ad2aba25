// Vector and its text form; List runs through the same tables, being a sequence of its own type.
#include <kes/core/list.h>
#include <kes/core/vector.h>

#include <kestest.h>

#include <QtTest>

#include <algorithm>
#include <climits>
#include <cstdint>
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

enum class Edit { Element, Reverse, Insert, InsertOwn, Erase, Append, PushBack, Clear, Reserve };

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

// Indices come from the table as int so that -1 can stand for the largest index there is.
std::size_t toIndex(int i)
{
    return i < 0 ? SIZE_MAX : std::size_t(i);
}

template <typename C>
void apply(C& c, Edit edit, int index, int count)
{
    const std::size_t at = toIndex(index);
    const std::size_t n = toIndex(count);
    switch (edit) {
    case Edit::Element: c[at] = valueOf<C>(99); break;
    case Edit::Reverse: std::reverse(c.begin(), c.end()); break;
    case Edit::Insert: c.insert(at, valueOf<C>(99)); break;
    case Edit::InsertOwn: c.insert(at, std::as_const(c)[n]); break;
    case Edit::Erase: c.erase(at, n); break;
    case Edit::Append: c.append(valueOf<C>(99)); break;
    case Edit::PushBack: c.push_back(valueOf<C>(99)); break;
    case Edit::Clear: c.clear(); break;
    case Edit::Reserve: c.reserve(100); break;
    }
}

template <typename C>
void checkEdit(const QVector<int>& initial, Edit edit, int index, int count, const QVector<int>& expected)
{
    const C original = make<C>(initial);
    C edited = original;
    apply(edited, edit, index, count);
    QCOMPARE(describe(edited), describe(make<C>(expected)));
    QCOMPARE(describe(original), describe(make<C>(initial)));
}

template <typename C>
void checkSharing()
{
    C a = make<C>({1, 2, 3});
    const C b = a;
    QCOMPARE(a.constData(), b.constData());
    QCOMPARE(std::as_const(a)[0] + std::as_const(a).at(2), valueOf<C>(1) + valueOf<C>(3));
    QVERIFY(a == b);
    QCOMPARE(a.constData(), b.constData());

    const auto* shared = b.constData();
    a[0] = valueOf<C>(7);
    QVERIFY(a.constData() != shared);
    QCOMPARE(b.constData(), shared);
    QCOMPARE(b[0], valueOf<C>(1));

    const auto* own = a.constData();
    a[1] = valueOf<C>(8);
    QCOMPARE(a.constData(), own);
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

private slots:
    void copyTakenBeforeEditNeverChanges_data()
    {
        QTest::addColumn<QVector<int>>("initial");
        QTest::addColumn<Edit>("edit");
        QTest::addColumn<int>("index");
        QTest::addColumn<int>("count");
        QTest::addColumn<QVector<int>>("expected");
        const QVector<int> abc{1, 2, 3};
        QTest::newRow("write first element") << abc << Edit::Element << 0 << 0 << QVector<int>{99, 2, 3};
        QTest::newRow("write last element") << abc << Edit::Element << 2 << 0 << QVector<int>{1, 2, 99};
        QTest::newRow("reverse through iterators") << abc << Edit::Reverse << 0 << 0 << QVector<int>{3, 2, 1};
        QTest::newRow("insert at front") << abc << Edit::Insert << 0 << 0 << QVector<int>{99, 1, 2, 3};
        QTest::newRow("insert in middle") << abc << Edit::Insert << 1 << 0 << QVector<int>{1, 99, 2, 3};
        QTest::newRow("insert at end") << abc << Edit::Insert << 3 << 0 << QVector<int>{1, 2, 3, 99};
        QTest::newRow("insert past end appends") << abc << Edit::Insert << 10 << 0 << QVector<int>{1, 2, 3, 99};
        QTest::newRow("insert at largest index appends") << abc << Edit::Insert << -1 << 0 << QVector<int>{1, 2, 3, 99};
        QTest::newRow("insert into empty") << QVector<int>{} << Edit::Insert << 5 << 0 << QVector<int>{99};
        QTest::newRow("insert own last element at front") << abc << Edit::InsertOwn << 0 << 2 << QVector<int>{3, 1, 2, 3};
        QTest::newRow("erase first") << abc << Edit::Erase << 0 << 1 << QVector<int>{2, 3};
        QTest::newRow("erase last") << abc << Edit::Erase << 2 << 1 << QVector<int>{1, 2};
        QTest::newRow("erase range") << abc << Edit::Erase << 0 << 2 << QVector<int>{3};
        QTest::newRow("erase range past end stops at end") << abc << Edit::Erase << 1 << 10 << QVector<int>{1};
        QTest::newRow("erase largest count") << abc << Edit::Erase << 1 << -1 << QVector<int>{1};
        QTest::newRow("erase nothing") << abc << Edit::Erase << 1 << 0 << abc;
        QTest::newRow("erase at end ignored") << abc << Edit::Erase << 3 << 1 << abc;
        QTest::newRow("erase at largest index ignored") << abc << Edit::Erase << -1 << 1 << abc;
        QTest::newRow("erase from empty ignored") << QVector<int>{} << Edit::Erase << 0 << 1 << QVector<int>{};
        QTest::newRow("append") << abc << Edit::Append << 0 << 0 << QVector<int>{1, 2, 3, 99};
        QTest::newRow("append to empty") << QVector<int>{} << Edit::Append << 0 << 0 << QVector<int>{99};
        QTest::newRow("push_back") << abc << Edit::PushBack << 0 << 0 << QVector<int>{1, 2, 3, 99};
        QTest::newRow("clear") << abc << Edit::Clear << 0 << 0 << QVector<int>{};
        QTest::newRow("reserve keeps values") << abc << Edit::Reserve << 0 << 0 << abc;
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
        checkSharing<IntVector>();
        checkSharing<StringList>();
    }

    void copiesOnManyThreadsLeaveOriginalAlone()
    {
        IntVector original{1, 2, 3};
        std::vector<std::thread> threads;
        for (int t = 0; t < 4; ++t) {
            threads.emplace_back([&original, t] {
                for (int i = 0; i < 20000; ++i) {
                    IntVector copy = std::as_const(original);
                    copy[0] = t;
                }
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

    void equalityComparesElements_data()
    {
        QTest::addColumn<QVector<int>>("lhs");
        QTest::addColumn<QVector<int>>("rhs");
        QTest::addColumn<bool>("equal");
        QTest::newRow("both empty") << QVector<int>{} << QVector<int>{} << true;
        QTest::newRow("same values") << QVector<int>{1, 2} << QVector<int>{1, 2} << true;
        QTest::newRow("one value differs") << QVector<int>{1, 2} << QVector<int>{1, 3} << false;
        QTest::newRow("other order") << QVector<int>{1, 2} << QVector<int>{2, 1} << false;
        QTest::newRow("prefix") << QVector<int>{1, 2} << QVector<int>{1, 2, 3} << false;
        QTest::newRow("empty and not") << QVector<int>{} << QVector<int>{0} << false;
    }

    void equalityComparesElements()
    {
        QFETCH(QVector<int>, lhs);
        QFETCH(QVector<int>, rhs);
        QFETCH(bool, equal);
        QCOMPARE(make<IntVector>(lhs) == make<IntVector>(rhs), equal);
        QCOMPARE(make<IntVector>(rhs) != make<IntVector>(lhs), !equal);
        QCOMPARE(make<StringList>(lhs) == make<StringList>(rhs), equal);
    }

    void atPastEndThrows()
    {
        const IntVector values{1, 2, 3};
        QCOMPARE(values.at(2), 3);
        QVERIFY_EXCEPTION_THROWN(values.at(3), std::out_of_range);
        QVERIFY_EXCEPTION_THROWN(IntVector().at(0), std::out_of_range);
    }

    void writesTextForm_data()
    {
        QTest::addColumn<QVector<int>>("values");
        QTest::addColumn<QByteArray>("text");
        QTest::newRow("empty") << QVector<int>{} << QByteArray("()");
        QTest::newRow("one") << QVector<int>{7} << QByteArray("(7)");
        QTest::newRow("hsv range") << QVector<int>{0, 360, 0, 100, 20, 100} << QByteArray("(0 360 0 100 20 100)");
        QTest::newRow("negative and extremes") << QVector<int>{-1, INT_MIN, INT_MAX}
                                               << QByteArray("(-1 -2147483648 2147483647)");
    }

    void writesTextForm()
    {
        QFETCH(QVector<int>, values);
        QFETCH(QByteArray, text);
        const IntVector vector = make<IntVector>(values);
        std::ostringstream os;
        os << vector;
        QCOMPARE(QByteArray::fromStdString(os.str()), text);
        QCOMPARE(QByteArray::fromStdString(kes::core::toString(vector)), text);
        bool ok = false;
        QVERIFY(kes::core::fromString(text.toStdString(), &ok) == vector);
        QVERIFY(ok);
    }

    void readsTextForm_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QVector<int>>("values");
        QTest::addColumn<bool>("ok");
        QTest::addColumn<QByteArray>("rest");
        const QVector<int> none;
        QTest::newRow("blanks inside") << QByteArray("( 1 2 3 4 5 6 )") << QVector<int>{1, 2, 3, 4, 5, 6} << true << QByteArray();
        QTest::newRow("compact") << QByteArray("(1 2 3)") << QVector<int>{1, 2, 3} << true << QByteArray();
        QTest::newRow("empty") << QByteArray("()") << none << true << QByteArray();
        QTest::newRow("empty with blank") << QByteArray("( )") << none << true << QByteArray();
        QTest::newRow("leading spaces") << QByteArray("   (4 5)") << QVector<int>{4, 5} << true << QByteArray();
        QTest::newRow("tabs and newlines") << QByteArray("(\t1\n2\n)") << QVector<int>{1, 2} << true << QByteArray();
        QTest::newRow("negative and plus") << QByteArray("(-5 0 +7)") << QVector<int>{-5, 0, 7} << true << QByteArray();
        QTest::newRow("trailing junk left unread") << QByteArray("(1 2) tail") << QVector<int>{1, 2} << true << QByteArray(" tail");
        QTest::newRow("junk value ends with 0") << QByteArray("(1 2 x 4)") << QVector<int>{1, 2, 0} << false << QByteArray("x 4)");
        QTest::newRow("comma separated") << QByteArray("(1,2)") << QVector<int>{1, 0} << false << QByteArray(",2)");
        QTest::newRow("overflow gives largest") << QByteArray("(99999999999 1)") << QVector<int>{INT_MAX} << false << QByteArray(" 1)");
        QTest::newRow("nested parenthesis") << QByteArray("((1))") << QVector<int>{0} << false << QByteArray("(1))");
        QTest::newRow("missing close") << QByteArray("(1 2 3") << QVector<int>{1, 2, 3} << true << QByteArray();
        // The established reading: the character read at the end is taken for "not )".
        QTest::newRow("missing close, trailing blank") << QByteArray("(1 2 3 ") << QVector<int>{1, 2, 3, 0} << false << QByteArray();
        QTest::newRow("open only") << QByteArray("(") << QVector<int>{0} << false << QByteArray();
        QTest::newRow("no opening parenthesis") << QByteArray("1 2 3") << none << false << QByteArray(" 2 3");
        QTest::newRow("empty input") << QByteArray() << none << false << QByteArray();
        QTest::newRow("only blanks") << QByteArray("  \n ") << none << false << QByteArray();
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

    void textFormIgnoresGlobalLocale()
    {
        const std::locale previous = std::locale::global(std::locale(std::locale::classic(), new GroupingPunct));
        const auto restore = qScopeGuard([&] { std::locale::global(previous); });
        QCOMPARE(kes::core::toString(IntVector{1234567}), std::string("(1234567)"));
        QVERIFY(kes::core::fromString("(1234567 8)") == IntVector({1234567, 8}));
    }
};

KES_TEST_MAIN(TestVector)
#include "tst_vector.moc"
