#pragma once

#include "eventlog.h"
#include "row.h"

#include <QtCore/QMetaEnum>
#include <QtWidgets/QLayout>

#include <functional>

// What every composite editor does alike with its rows: the operations that a
// type flag sends to one row, those that reach all rows, and visibility.
namespace CompositeCases {

// Rows by their type flags.
using Rows = QMap<int, Row>;

inline Rows rowsOf(const QWidget &editor)
{
    const QVector<QPair<int, const char *>> names {
        {2, "frameR"}, {4, "frameG"}, {8, "frameB"},     {16, "frameAll"},   {16, "frameOpacity"},
        {2, "frameX"}, {4, "frameY"}, {8, "frameWidth"}, {16, "frameHeight"}};
    Rows rows;
    for (const auto &name : names) {
        if (editor.findChild<QWidget *>(QLatin1String(name.second)))
            rows.insert(name.first, Row(editor, name.second));
    }
    return rows;
}

using Read = std::function<QString(const Row &)>;

inline QString widths(const QWidget *widget)
{
    return limits(widget->minimumWidth(), widget->maximumWidth());
}

inline QString buttonWidths(const Row &row)
{
    return widths(row.minus) + QLatin1Char(' ') + widths(row.plus);
}

// Reads a setting of both buttons.
template <typename Value> Read ofButtons(Value (QAbstractButton::*get)() const)
{
    return [get](const Row &row) {
        return QStringLiteral("%1 %2").arg((row.minus->*get)()).arg((row.plus->*get)());
    };
}

// Whether a press on plus gets past 20, where a direction may hold the row.
inline QString stepFrom20(const Row &row)
{
    row.frame->setValue(20);
    User::click(row.plus);
    return QString::number(row.frame->value());
}

// What the row does while its handle is away from the value, held by the user.
inline QString drag(const Row &row)
{
    bool isReported = false;
    const int before = row.frame->value();
    const bool isLow = before < row.slider->maximum() / 2;
    const auto connection =
        QObject::connect(row.frame, &Vantor::Widgets::SliderEditFrame::valueChanged, row.frame,
                         [&isReported] { isReported = true; });
    User::grabHandle(row.slider);
    User::moveHandle(row.slider, isLow ? row.slider->maximum() : row.slider->minimum());
    const QString report = QLatin1String(row.frame->value() == before ? "kept" : "followed")
        + QLatin1String(isReported ? ", reported" : ", silent");
    QObject::disconnect(connection);
    User::dropHandle(row.slider);
    return report;
}

inline QString wheel(const Row &row)
{
    row.frame->setValue(row.slider->minimum());
    User::click(row.spinBox);
    User::turnWheel(row.spinBox);
    return QLatin1String(row.frame->value() == row.slider->minimum() ? "stays" : "turns");
}

inline QString spacings(const Row &row)
{
    const auto right = [&row](const char *layout) {
        return row.frame->findChild<QLayout *>(QLatin1String(layout))->contentsMargins().right();
    };
    return QStringLiteral("%1 %2").arg(right("nameLayout")).arg(right("sliderLayout"));
}

// An operation on one row: after the call, read() of that row gives the result.
template <typename Frame> struct RowOperation
{
    const char *name;
    const char *rgbWarning;
    const char *rectWarning;
    std::function<void(Frame &, typename Frame::Type)> call;
    Read read;
    QString result;
};

template <typename Frame> QVector<RowOperation<Frame>> rowOperations()
{
    using T = typename Frame::Type;
    const Read labelWidths = [](const Row &row) { return widths(row.label); };
    const Read spinBoxWidths = [](const Row &row) { return widths(row.spinBox); };
    return {
        {"setLabelText", "Set RGBAll label text", "Set Rect label text",
         [](Frame &f, T t) { f.setLabelText(t, QStringLiteral("Gain")); },
         [](const Row &row) { return row.label->text(); }, "Gain"},
        {"setLabelWidthRange", "Set RGB label width range", "Set Rect label width range",
         [](Frame &f, T t) { f.setLabelWidthRange(t, 90, 20); }, labelWidths, "20..90"},
        {"setLabelFixedWidth", "Set RGB label fixed width", "Set Rect label fixed width",
         [](Frame &f, T t) { f.setLabelFixedWidth(t, 33); }, labelWidths, "33..33"},
        {"setButtonWidthRange", "Set RGB button width range", "Set Rect button width range",
         [](Frame &f, T t) { f.setButtonWidthRange(t, 60, 30); }, buttonWidths, "30..60 30..60"},
        {"setButtonFixedWidth", "Set RGB button fixed width", "Set Rect button fixed width",
         [](Frame &f, T t) { f.setButtonFixedWidth(t, 41); }, buttonWidths, "41..41 41..41"},
        {"setSpinBoxWidthRange", "Set RGB spinbox width range", "Set Rect spinbox width range",
         [](Frame &f, T t) { f.setSpinBoxWidthRange(t, 80, 40); }, spinBoxWidths, "40..80"},
        {"setSpinBoxFixedWidth", "Set RGB spinbox fixed width", "Set Rect spinbox fixed width",
         [](Frame &f, T t) { f.setSpinBoxFixedWidth(t, 72); }, spinBoxWidths, "72..72"},
        {"setValue", "Set RGB value", "Set Rect value", [](Frame &f, T t) { f.setValue(t, 77); },
         [](const Row &row) { return row.spinBox->text(); }, "77"},
        {"setRange", "Set RGB range", "Set Rect value range",
         [](Frame &f, T t) { f.setRange(t, 5, 95); },
         [](const Row &row) { return limits(row.frame->minimum(), row.frame->maximum()); },
         "5..95"},
        {"setSingleStep", "Set RGB single step", "Set Rect single step",
         [](Frame &f, T t) { f.setSingleStep(t, 3); },
         [](const Row &row) { return QString::number(row.frame->singleStep()); }, "3"},
        {"setPageStep", "Set RGB page step", "Set Rect page step",
         [](Frame &f, T t) { f.setPageStep(t, 7); },
         [](const Row &row) { return QString::number(row.slider->pageStep()); }, "7"},
    };
}

// Every flag from -2 to 64: a row's own flag changes that row alone, any other
// value nothing, and is reported in the name of the operation.
template <typename Frame>
void checkRowOperation(const RowOperation<Frame> &operation, const QString &warning,
                       const QString &reporter)
{
    Frame frame;
    const Rows rows = rowsOf(frame);
    QVERIFY(User::show(frame));
    EventLog log;
    log.watch(&frame, &Frame::valueChanged, QStringLiteral("valueChanged"));
    QMap<int, QString> expected;
    for (auto row = rows.begin(); row != rows.end(); ++row) {
        expected[row.key()] = operation.read(*row);
        QVERIFY(expected[row.key()] != operation.result);
    }
    for (int flag = -2; flag <= 64; ++flag) {
        log.take(); // what the readings caused
        operation.call(frame, static_cast<typename Frame::Type>(flag));
        if (rows.contains(flag)) {
            expected[flag] = operation.result;
            QCOMPARE(log.take(), QStringList());
        } else {
            QCOMPARE(log.take(),
                     QStringList {QStringLiteral("warning: %1 has failed. The type  "
                                                 "%2  is invalid.")
                                      .arg(warning)
                                      .arg(flag)});
            QVERIFY2(log.lastContext().function.contains(reporter + QLatin1Char('(')),
                     qPrintable(log.lastContext().function));
            QVERIFY(log.lastContext().file.endsWith(QLatin1String(".cpp")));
            QVERIFY(log.lastContext().line > 0);
            QCOMPARE(log.lastContext().category, QStringLiteral("default"));
        }
        for (auto row = rows.begin(); row != rows.end(); ++row)
            QCOMPARE(operation.read(*row), expected[row.key()]);
    }
}

// An operation on all rows, called while they are hidden.
template <typename Frame> struct AllRowsOperation
{
    const char *name;
    std::function<void(Frame &)> call;
    Read read;
    QString result;
};

template <typename Frame> QVector<AllRowsOperation<Frame>> allRowsOperations()
{
    return {
        {"setHorizontalSpacing", [](Frame &f) { f.setHorizontalSpacing(17, 23); }, spacings,
         "17 23"},
        {"setSpinBoxWheelEnable", [](Frame &f) { f.setSpinBoxWheelEnable(true); }, wheel, "turns"},
        {"setAutoRepeat", [](Frame &f) { f.setAutoRepeat(true); },
         ofButtons(&QAbstractButton::autoRepeat), "1 1"},
        {"setAutoRepeatDelay", [](Frame &f) { f.setAutoRepeatDelay(321); },
         ofButtons(&QAbstractButton::autoRepeatDelay), "321 321"},
        {"setAutoRepeatInterval", [](Frame &f) { f.setAutoRepeatInterval(45); },
         ofButtons(&QAbstractButton::autoRepeatInterval), "45 45"},
        {"setReleaseMode", [](Frame &f) { f.setReleaseMode(true); }, drag, "kept, silent"},
        {"setTimeSamplingRate", [](Frame &f) { f.setTimeSamplingRate(60000); }, drag,
         "followed, silent"},
    };
}

template <typename Frame> void checkAllRowsOperation(const AllRowsOperation<Frame> &operation)
{
    Frame frame;
    const Rows rows = rowsOf(frame);
    QVERIFY(User::show(frame));
    EventLog log;
    for (const Row &row : rows)
        QVERIFY2(operation.read(row) != operation.result, qPrintable(operation.read(row)));
    frame.setEditerVisible(0);
    operation.call(frame);
    frame.setEditerVisible(30);
    QCoreApplication::processEvents();
    for (const Row &row : rows)
        QCOMPARE(operation.read(row), operation.result);
}

template <typename Frame> void checkVisibility()
{
    Frame frame;
    const Rows rows = rowsOf(frame);
    for (int i = 0; i < 64; ++i) {
        const int types = i * 37 % 64;
        frame.setEditerVisible(types);
        for (auto row = rows.begin(); row != rows.end(); ++row)
            QCOMPARE(row->frame->isVisibleTo(&frame), (types & row.key()) != 0);
    }
}

// The spacer at the end of the editor's layout.
inline QString lastSpacer(const QWidget &editor)
{
    const QLayout *layout = editor.layout();
    const QSpacerItem *spacer = layout->itemAt(layout->count() - 1)->spacerItem();
    const auto policies = QMetaEnum::fromType<QSizePolicy::Policy>();
    return QStringLiteral("%1x%2 %3 %4")
        .arg(spacer->sizeHint().width())
        .arg(spacer->sizeHint().height())
        .arg(QLatin1String(policies.valueToKey(spacer->sizePolicy().horizontalPolicy())))
        .arg(QLatin1String(policies.valueToKey(spacer->sizePolicy().verticalPolicy())));
}

template <typename Frame> void checkLastSpacer()
{
    Frame frame;
    frame.setLastVerticalSpacerExpanding(false);
    QCOMPARE(lastSpacer(frame), QStringLiteral("20x0 Expanding Ignored"));
    frame.setLastVerticalSpacerExpanding(true);
    QCOMPARE(lastSpacer(frame), QStringLiteral("20x20 Expanding Expanding"));
}

// The same as the editor does it: by the newer name where there is one.
inline int textWidth(const Row &row, const QString &text)
{
#if QT_VERSION >= QT_VERSION_CHECK(5, 11, 0)
    return row.frame->fontMetrics().horizontalAdvance(text);
#else
    return row.frame->fontMetrics().width(text);
#endif
}

// Holds the handle of each row in turn.
template <typename Frame> void checkMousePressed()
{
    Frame frame;
    const Rows rows = rowsOf(frame);
    QVERIFY(User::show(frame));
    for (const Row &row : rows) {
        QVERIFY(!frame.isMousePressed());
        User::grabHandle(row.slider);
        QVERIFY(frame.isMousePressed());
        User::dropHandle(row.slider);
    }
    QVERIFY(!frame.isMousePressed());
}

using Check = std::function<void()>;

// Fills the data of a test that runs the column "check". The class whose
// warnings it shows may be another one's.
template <typename Frame> void addChecks(const char *reporter)
{
    const QByteArray name = QByteArray(Frame::staticMetaObject.className()).split(':').last();
    const bool isRect = name == "RectEditFrame";
    for (const auto &operation : rowOperations<Frame>()) {
        QTest::addRow("%s::%s", name.constData(), operation.name) << Check([=] {
            checkRowOperation(operation, isRect ? operation.rectWarning : operation.rgbWarning,
                              QLatin1String(reporter) + QLatin1String("::") + operation.name);
        });
    }
    for (const auto &operation : allRowsOperations<Frame>()) {
        QTest::addRow("%s::%s", name.constData(), operation.name)
            << Check([=] { checkAllRowsOperation(operation); });
    }
    QTest::addRow("%s::setEditerVisible", name.constData()) << Check(checkVisibility<Frame>);
    QTest::addRow("%s::setLastVerticalSpacerExpanding", name.constData())
        << Check(checkLastSpacer<Frame>);
}

} // namespace CompositeCases

Q_DECLARE_METATYPE(CompositeCases::Check)
