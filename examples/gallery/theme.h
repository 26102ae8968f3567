#pragma once

#include <QtCore/QHash>
#include <QtCore/QObject>
#include <QtCore/QSize>
#include <QtGui/QFont>

class QWidget;

// The look of the program, switched at run time: the palette is the program's
// own affair, the editors are styled by a sheet of the styles folder.
class Theme : public QObject
{
    Q_OBJECT

public:
    enum Kind { TouchDark, TouchLight, None };

    struct Name
    {
        QString file; // in names of files
        QString text; // in the menu
    };
    static QVector<Name> names(); // in the order of Kind

    // To be called before the application is made.
    static void setUpApplication();
    // Where Qt can't read the glyphs it says what to install.
    static bool hasGlyphs();

    explicit Theme(QObject *parent = nullptr);
    ~Theme() override;

    // Makes the editors below the widget known to the theme. To be called while
    // no sheet is on, before the widget is shown.
    void adopt(QWidget *root);

    void apply(Kind kind);
    void setFontScale(qreal scale);
    void setRightToLeft(bool on);
    Kind kind() const { return m_kind; }

private:
    struct SizeLimits
    {
        QSize minimum;
        QSize maximum;
    };

    void restoreSizes();

    Kind m_kind = None;
    const QFont m_font;
    QHash<QWidget *, SizeLimits> m_sizes;
};
