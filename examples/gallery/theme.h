#pragma once

#include <QtCore/QObject>
#include <QtCore/QVector>
#include <QtGui/QFont>

class QWidget;

// The look of the program, switched at run time: the program sets its own palette,
// and a theme of the library styles the editors.
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

    // Gives the buttons of the editors in the widget icons, unless a theme does.
    void adopt(QWidget *root);

    void apply(Kind kind);
    void setFontScale(qreal scale);
    void setRightToLeft(bool on);
    Kind kind() const { return m_kind; }

private:
    Kind m_kind = None;
    const QFont m_font;
};
