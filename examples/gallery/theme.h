#pragma once

#include <QtCore/QHash>
#include <QtCore/QObject>
#include <QtCore/QSize>
#include <QtGui/QFont>

class QWidget;

// The look of the program, switched at run time: the program sets its own palette,
// and a sheet of the styles folder styles the editors.
class Theme : public QObject
{
    Q_OBJECT

public:
    enum Kind { TouchDark, TouchLight, Desktop, None };

    struct Name
    {
        QString file; // in names of files
        QString text; // in the menu
    };
    static QVector<Name> names(); // in the order of Kind

    // To be called before the application is constructed.
    static void setUpApplication();
    // If Qt can't read the glyphs, logs which package to install.
    static bool hasGlyphs();

    explicit Theme(QObject *parent = nullptr);
    ~Theme() override;

    // Registers the editors in the widget with the theme. To be called while
    // no sheet is set, before the widget is shown.
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
