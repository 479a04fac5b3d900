#ifndef CODE_GEN_APP_GENERATE_LIST_VIEW_H
#define CODE_GEN_APP_GENERATE_LIST_VIEW_H

#include "foundation/string.h"

#include <QtWidgets/QTreeWidget>

#include <map>

// The list of scripts in the preferences: a check box "Generate?" and the script's file name.
//
// The map follows the check boxes, whether the user or the program sets them.
class DtGenerateListView : public QTreeWidget
{
    Q_OBJECT

public:
    explicit DtGenerateListView(QWidget* parent = nullptr);

    void addItem(const char* name, bool generate);
    void setItemGenerated(QTreeWidgetItem* item, bool generate);
    // Applies to the selected items.
    void selectAllItems(bool generate);
    void toggleAllSelectedItems();
    // Script file name to whether it is to run.
    const std::map<DtString, bool>& generateScripts() const { return myGenerateScripts; }

public Q_SLOTS:
    void checkCallback(QTreeWidgetItem* item, int column);

private:
    bool isGenerated(const QTreeWidgetItem* item) const;

    std::map<DtString, bool> myGenerateScripts;
    int myGenerateColumn = 0;
    int myNameColumn = 1;
    int myGenerateColumnWidth = 36;
    int myNameColumnWidth = 190;
};

#endif
