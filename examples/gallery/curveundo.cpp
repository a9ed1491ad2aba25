#include "curveundo.h"

#include <kes/qt/discreteapproximator/model.h>
#include <kes/qt/discreteapproximator/schematic/view.h>
#include <kes/qt/discreteapproximator/view.h>
#include <kes/qt/undocommand.h>

#include <QCoreApplication>
#include <QEvent>
#include <QMouseEvent>
#include <QUndoStack>

#include <algorithm>
#include <cstddef>

namespace kes::gallery {

namespace {

using Points = CurveUndoTracker::Points;

enum class Edit { Move, Insert, Remove, Paste };

// The first index at which the lists differ; the shorter size when one begins the other.
int firstDifference(const Points& a, const Points& b)
{
    const std::size_t n = std::min(a.size(), b.size());
    std::size_t i = 0;
    while (i < n && a[i] == b[i]) {
        ++i;
    }
    return int(i);
}

} // namespace

/// One edit of the curve: the lists before and after it.
class CurveEdit : public kes::qt::UndoCommand
{
    Q_DECLARE_TR_FUNCTIONS(kes::gallery::CurveEdit)

public:
    CurveEdit(Edit edit, int row, const Points& before, const Points& after, CurveUndoTracker* tracker)
        : m_edit(edit)
        , m_row(row)
        , m_gesture(edit == Edit::Move ? tracker->gesture() : -1)
        , m_before(before)
        , m_after(after)
        , m_tracker(tracker)
    {
        // The stack's own text, for anything that does not ask translatedText().
        const QString text = QString::fromUtf8(sourceText());
        setText(m_edit == Edit::Paste ? text : text.arg(m_row));
    }

    void undo() override { m_tracker->apply(m_before); }
    void redo() override { m_tracker->apply(m_after); }

    int id() const override { return 1; }

    // The steps of one drag of one point make one command.
    bool mergeWith(const QUndoCommand* other) override
    {
        const auto* next = dynamic_cast<const CurveEdit*>(other);
        if (!next || m_edit != Edit::Move || next->m_edit != Edit::Move || next->m_row != m_row
            || m_gesture < 0 || next->m_gesture != m_gesture) {
            return false;
        }
        m_after = next->m_after;
        return true;
    }

    QString translatedText() const override
    {
        switch (m_edit) {
        case Edit::Move:
            return tr("Move point %1").arg(m_row);
        case Edit::Insert:
            return tr("Insert point %1").arg(m_row);
        case Edit::Remove:
            return tr("Remove point %1").arg(m_row);
        case Edit::Paste:
            break;
        }
        return tr("Paste points");
    }

private:
    const char* sourceText() const
    {
        switch (m_edit) {
        case Edit::Move:
            return "Move point %1";
        case Edit::Insert:
            return "Insert point %1";
        case Edit::Remove:
            return "Remove point %1";
        case Edit::Paste:
            break;
        }
        return "Paste points";
    }

    Edit m_edit;
    int m_row;
    int m_gesture;
    Points m_before;
    Points m_after;
    CurveUndoTracker* m_tracker;
};

CurveUndoTracker::CurveUndoTracker(kes::qt::discreteapproximator::View* editor, QUndoStack* stack,
                                   QObject* parent)
    : QObject(parent)
    , m_editor(editor)
    , m_stack(stack)
    , m_points(editor->data())
{
    connect(editor->model(), SIGNAL(modelReset()), this, SLOT(onModelReset()));
    connect(editor, SIGNAL(dataChanged()), this, SLOT(onDataChanged()));
    editor->graphicsView()->viewport()->installEventFilter(this);
}

CurveUndoTracker::~CurveUndoTracker() = default;

void CurveUndoTracker::apply(const Points& points)
{
    m_applying = true;
    m_editor->setData(points);
    m_applying = false;
    m_points = m_editor->data();
}

int CurveUndoTracker::gesture() const
{
    return m_buttonHeld ? m_gesture : -1;
}

bool CurveUndoTracker::eventFilter(QObject* watched, QEvent* event)
{
    // Only the left button drags; a right click opens a menu, which takes the release.
    if (event->type() == QEvent::MouseButtonPress) {
        ++m_gesture;
        m_buttonHeld = static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton;
    } else if (event->type() == QEvent::MouseButtonRelease) {
        m_buttonHeld = false;
    }
    return QObject::eventFilter(watched, event);
}

void CurveUndoTracker::onModelReset()
{
    if (!m_applying) {
        m_reset = true;
    }
}

void CurveUndoTracker::onDataChanged()
{
    if (m_applying) {
        return;
    }
    const Points before = m_points;
    const Points after = m_editor->data();
    const bool reset = m_reset;
    m_reset = false;
    m_points = after;
    if (before == after) {
        return;
    }
    const int row = firstDifference(before, after);
    Edit edit = Edit::Paste;
    if (!reset) {
        if (after.size() == before.size() + 1) {
            edit = Edit::Insert;
        } else if (after.size() + 1 == before.size()) {
            edit = Edit::Remove;
        } else if (after.size() == before.size()) {
            edit = Edit::Move;
        }
    }
    // Pushing runs redo(), which puts back the list the editor already shows.
    m_stack->push(new CurveEdit(edit, row, before, after, this));
}

} // namespace kes::gallery
