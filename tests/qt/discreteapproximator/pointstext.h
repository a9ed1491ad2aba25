#ifndef KES_TESTS_DISCRETEAPPROXIMATOR_POINTSTEXT_H
#define KES_TESTS_DISCRETEAPPROXIMATOR_POINTSTEXT_H

#include <kes/core/pointf.h>
#include <kes/core/vector.h>

#include <QMetaType>
#include <QStringList>
#include <QtTest>

Q_DECLARE_METATYPE(kes::core::PointF)
Q_DECLARE_METATYPE(kes::core::Vector<kes::core::PointF>)

namespace kes::core {

// Found by QCOMPARE for its failure messages; the core's own toString() of a vector writes a
// std::string and needs a stream operator that points do not have.
inline char* toString(const PointF& p)
{
    return QTest::toString(QStringLiteral("(%1, %2)").arg(p.x, 0, 'g', 17).arg(p.y, 0, 'g', 17));
}

inline char* toString(const Vector<PointF>& points)
{
    QStringList texts;
    for (const PointF& p : points)
        texts << QStringLiteral("(%1, %2)").arg(p.x).arg(p.y);
    return QTest::toString(texts.join(QLatin1Char(' ')));
}

} // namespace kes::core

#endif
