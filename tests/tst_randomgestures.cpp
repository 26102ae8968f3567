#include "cropeditframe.h"
#include "editormodel.h"
#include "edituser.h"
#include "layouteditframe.h"
#include "maskeditframe.h"
#include "rgballeditframe.h"
#include "rgbeditframe.h"
#include "rgbopacityeditframe.h"

#include <random>

using namespace Vantor::Widgets;

// A user who does anything, against the model, gesture by gesture. The same
// seed does the same; VANTORSLIDER_SEED and VANTORSLIDER_GESTURES (a number per
// editor) choose others.
class tst_RandomGestures : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void followsTheModel_data();
    void followsTheModel();
};

namespace {

int setting(const char *name, int otherwise)
{
    return qEnvironmentVariableIsSet(name) ? qEnvironmentVariableIntValue(name) : otherwise;
}

int rowCount(const EditUser &user)
{
    return static_cast<int>(user.rows.size());
}

// One editor, its user and its model, which the session of its kind owns.
class Session
{
public:
    Session(QWidget &editor, EditUser &user, EditorModel &model)
        : m_editor(editor), m_user(user), m_model(model),
          m_random(static_cast<unsigned>(setting("VANTORSLIDER_SEED", 1)))
    {
    }
    virtual ~Session() = default;

    void run()
    {
        // What Qt's slider makes of the mouse is the model's input.
        for (const Row &row : m_user.rows) {
            const auto follow = [this, &row](auto signal, auto slot) {
                QObject::connect(row.slider, signal, row.frame, [this, slot](auto... val) {
                    m_inputs.append([=](RowModel &model) { (model.*slot)(val...); });
                });
            };
            follow(&QSlider::sliderPressed, &RowModel::sliderPressed);
            follow(&QSlider::sliderMoved, &RowModel::sliderMoved);
            follow(&QSlider::sliderReleased, &RowModel::sliderReleased);
            follow(&QSlider::valueChanged, &RowModel::sliderChanged);
        }
        QVERIFY(User::show(m_editor));
        m_user.log.take();
        for (int i = 0; i < setting("VANTORSLIDER_GESTURES", 2500); ++i) {
            const int row = random(0, rowCount(m_user) - 1);
            const QString gesture = random(0, 9) == 0 ? program() : user(row);
            const QStringList actual = m_user.log.take();
            QStringList expected;
            expected.swap(m_model.log);
            const QByteArray where = QStringLiteral("gesture %1, row %2, %3: %4\ninstead of %5")
                                         .arg(i)
                                         .arg(row)
                                         .arg(gesture, actual.join(' '), expected.join(' '))
                                         .toUtf8();
            QVERIFY2(actual == expected, where.constData());
            for (int j = 0; j < m_user.rows.size(); ++j) {
                QVERIFY2(m_user.rows[j].frame->value() == m_model.rows[j].value, where);
                QVERIFY2(m_user.rows[j].slider->value() == m_model.rows[j].value, where);
                QVERIFY2(m_user.rows[j].spinBox->text() == QString::number(m_model.rows[j].value),
                         where);
            }
            QVERIFY2(actual.filter(QStringLiteral("warning")).isEmpty(), where);
        }
    }

protected:
    int random(int least, int greatest)
    {
        return std::uniform_int_distribution<int>(least, greatest)(m_random);
    }

    virtual QString program() = 0;

private:
    QString user(int index)
    {
        const Row &row = m_user.rows[index];
        RowModel &model = m_model.rows[index];
        const int val = valueFor(model), part = random(0, 100), step = row.frame->singleStep();
        const QString expression = QStringLiteral("%1-%2").arg(val + part).arg(part);
        const bool isUp = random(0, 1);
        switch (random(0, 7)) {
        case 0:
        case 1:
            User::click(isUp ? row.plus : row.minus);
            model.step(isUp ? step : -step);
            return "button";
        case 2:
            row.type(expression + '\n');
            model.enter(val);
            return expression + " Enter";
        case 3:
            row.type(expression);
            User::press(Qt::Key_Tab);
            model.leave(val);
            return expression + " Tab";
        case 4:
            row.type({});
            User::press(isUp ? Qt::Key_Up : Qt::Key_Down);
            User::press(Qt::Key_Return);
            model.stepInSpinBox(isUp ? step : -step);
            return "arrow key";
        case 5:
            User::clickGroove(row.slider, isUp);
            follow(model);
            return "groove";
        case 6:
            User::turnWheel(isUp ? static_cast<QWidget *>(row.slider) : row.spinBox);
            return "wheel";
        default:
            User::grabHandle(row.slider);
            for (int moves = random(0, 4); moves > 0; --moves) {
                User::moveHandle(row.slider, valueFor(model));
                if (model.isSampling && random(0, 1)) {
                    follow(model);
                    tick(row.frame);
                    model.tick();
                }
            }
            User::dropHandle(row.slider);
            follow(model);
            return "drag";
        }
    }

    // At times beyond the range.
    int valueFor(const RowModel &row) { return random(row.min - 5, row.max + 5); }

    void follow(RowModel &model)
    {
        for (const auto &input : m_inputs)
            input(model);
        m_inputs.clear();
    }

    QWidget &m_editor;
    EditUser &m_user;
    EditorModel &m_model;
    std::mt19937 m_random;
    QVector<std::function<void(RowModel &)>> m_inputs;
};

template <typename Frame> class RgbSession : public Session
{
public:
    RgbSession() : Session(m_frame, m_user, m_model)
    {
        m_user.log.watch(&m_frame, &Frame::valueChanged, QString());
        for (int i = 0; i < m_user.rows.size(); ++i) {
            auto *const row = m_user.rows[i].frame;
            m_model.rows[i].setRange(row->minimum(), row->maximum());
            m_model.rows[i].set(row->value());
        }
    }

protected:
    // Values beyond the range too, which the rows clamp; a mode.
    QString program() override
    {
        const int i = random(0, rowCount(m_user) - 1), val = random(-20, 300);
        m_frame.setValue(typename Frame::Type(2 << i), val);
        m_model.rows[i].set(val);
        const bool isReleaseMode = random(0, 1), isSampling = random(0, 9) == 0;
        if (isSampling)
            m_frame.setTimeSamplingRate(60000); // the ticks come by hand
        m_frame.setReleaseMode(isReleaseMode);
        m_frame.setAutoRepeat(false);
        for (RowModel &row : m_model.rows) {
            row.isReleaseMode = isReleaseMode;
            row.isSampling = row.isSampling || isSampling;
        }
        return "program";
    }

private:
    Frame m_frame;
    EditUser m_user {rowsOf(m_frame).values().toVector()};
    EditorModel m_model {rowCount(m_user)};
};

template <typename Frame> class RectSession : public Session
{
public:
    RectSession() : Session(m_frame, m_user, m_model) { newArea(); }

protected:
    QString program() override
    {
        switch (random(0, 6)) {
        case 0:
            User::click(m_user.positionLock);
            m_model.togglePositionLock();
            return "position lock";
        case 1:
        case 2:
            User::click(m_user.sizeLock);
            m_model.setSizeLock(!m_model.isSizeLocked);
            return "size lock";
        case 3: {
            const bool isOn = random(0, 1);
            m_frame.setSizeLock(isOn);
            m_model.setSizeLock(isOn);
            return "size lock by the program";
        }
        case 4:
            m_model.isOffset = random(0, 3) == 0;
            m_frame.setSizeLockEnable(
                true, m_model.isOffset ? RectEditFrame::OffsetLock : RectEditFrame::SizeScaleLock);
            return "kind of the size lock";
        case 5: {
            const double ratio = random(1, 4000) / 1000.0;
            m_frame.setSizeLock(ratio);
            m_model.setRatio(ratio);
            return "ratio";
        }
        default:
            newArea();
            return "new area";
        }
    }

private:
    static constexpr bool IsCrop = std::is_same<Frame, CropEditFrame>::value;
    static constexpr bool IsMask = std::is_same<Frame, MaskEditFrame>::value;

    // Another picture: ranges, values within them, a mode.
    void newArea()
    {
        QVector<int> least;
        for (int i = 0; i < 4; ++i)
            least.append(QVector<int> {-9, 0, 1, 30}[random(0, 3)]);
        const QVector<int> extent {random(100, 900), random(100, 900)};
        QVector<int> values(4);
        const bool isReleaseMode = random(0, 2) == 0;
        for (int i = 0; i < 4; ++i) {
            RowModel &row = m_model.rows[i];
            if (IsMask)
                row.setRange(0, extent[i / 2]);
            else
                row.setRange(least[i], i < 2 ? extent[i] - least[i + 2] : extent[i - 2]);
            row.isReleaseMode = isReleaseMode;
        }
        for (int i = 0; i < 4; ++i) {
            const RowModel &row = m_model.rows[i];
            const int partner = m_model.partner(i);
            values[i] = random(
                row.min, partner > i ? row.max : qMin(row.max, m_model.limit(i) - values[partner]));
        }
        if constexpr (IsMask) {
            m_frame.setMaskRange(extent[1], extent[0]);
            m_frame.setMaskValue(values[0], values[1], values[2], values[3]);
        } else if constexpr (IsCrop) {
            m_frame.setCropMinPos(least[0], least[1]);
            m_frame.setCropMinSize(least[2], least[3]);
            m_frame.setCropRange(extent[0], extent[1]);
            m_frame.setCropValue(values[0], values[1], values[2], values[3]);
        } else {
            for (int i = 0; i < 4; ++i)
                m_frame.setRange(RectUser::flag(i), m_model.rows[i].min, m_model.rows[i].max);
            m_frame.setValue(values[0], values[1], values[2], values[3]);
        }
        m_model.set(values);
        m_frame.setReleaseMode(isReleaseMode);
        m_frame.setAutoRepeat(false);
    }

    Frame m_frame;
    RectUser m_user {m_frame};
    RectModel m_model {IsCrop ? RectModel::Crop : IsMask ? RectModel::Mask : RectModel::Plain};
};

template <typename Session> void add(const char *name)
{
    QTest::newRow(name) << Check([] { Session().run(); });
}

} // namespace

void tst_RandomGestures::followsTheModel_data()
{
    qInfo("seed %d", setting("VANTORSLIDER_SEED", 1));
    QTest::addColumn<Check>("check");
    add<RgbSession<RGBEditFrame>>("RGBEditFrame");
    add<RgbSession<RGBAllEditFrame>>("RGBAllEditFrame");
    add<RgbSession<RGBOpacityEditFrame>>("RGBOpacityEditFrame");
    add<RectSession<RectEditFrame>>("RectEditFrame");
    add<RectSession<LayoutEditFrame>>("LayoutEditFrame");
    add<RectSession<CropEditFrame>>("CropEditFrame");
    add<RectSession<MaskEditFrame>>("MaskEditFrame");
}

void tst_RandomGestures::followsTheModel()
{
    QFETCH(Check, check);
    check();
}

int main(int argc, char *argv[])
{
    return runTest<tst_RandomGestures>(argc, argv);
}

#include "tst_randomgestures.moc"
