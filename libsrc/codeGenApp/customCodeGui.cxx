#include "codeGenApp/customCodeGui.h"

#include "codeGenApp/codeGenAppGui.h"
#include "codeGenApp/highlighter.h"
#include "codeGenApp/preferencesDialog.h"
#include "fileGenerator/classFileWriter.h"
#include "foundation/fileUtils.h"
#include "foundation/outputStream.h"
#include "foundation/stringUtils.h"
#include "omtReader/interactionClassFedNode.h"
#include "omtReader/objectClassFedNode.h"
#include "omtReader/omtTree.h"
#include "ui_customCodeGui.h"

#include <QtCore/QRegularExpression>
#include <QtCore/QScopedValueRollback>
#include <QtGui/QCloseEvent>
#include <QtGui/QScreen>
#include <QtWidgets/QLabel>
#include <QtWidgets/QMenu>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QShortcut>
#include <QtWidgets/QStyle>

#include <algorithm>

namespace
{
const char theTemplates[] = "../data/templates/customUITemplates/";
const char theGuide[] = "customUIguide.tlt";
const QString theInteractionsText = QStringLiteral("Interactions");

// The templates of one kind of member.
struct DtTemplateRow
{
    const char *encHeader, *decHeader;
    const char *encoder, *decoder;
    const char *enumEncoder, *enumDecoder;
};

const DtTemplateRow theAttributeTemplates = {"customEncHeader.tlt", "customDecHeader.tlt",   "customEncoder.tlt",
                                             "customDecoder.tlt",   "customEnumEncoder.tlt", "customEnumDecoder.tlt"};
const DtTemplateRow theParameterTemplates = {"customEncInterHeader.tlt", "customDecInterHeader.tlt",
                                             "customIntEncoder.tlt",     "customIntDecoder.tlt",
                                             "customEnumIntEncoder.tlt", "customEnumIntDecoder.tlt"};

const DtTemplateRow& templates(bool isParameter)
{
    return isParameter ? theParameterTemplates : theAttributeTemplates;
}

QString text(const DtString& value)
{
    return QString::fromUtf8(value.c_str(), static_cast<int>(value.length()));
}

DtString bytes(const QString& value)
{
    return DtString(value.toStdString());
}

// Lets a line break behind each dot, and within words that are wider than the column.
QString breakable(QString text)
{
    static const QRegularExpression theBreaks(QStringLiteral("(\\.|\\w{24})"));
    return text.replace(theBreaks, QStringLiteral("\\1") + QChar(0x200B));
}

void replaceText(CodeEditor* editor, const QString& value)
{
    QTextCursor cursor(editor->document());
    cursor.select(QTextCursor::Document);
    cursor.insertText(value); // unlike setPlainText() it can be undone
}
} // namespace

DtCustomCodeGui::DtCustomCodeGui(QApplication* /*application*/, QTreeWidgetItem* item, DtCodeGenAppGui* mainWindow,
                                 QWidget* parent)
    : QWidget(parent != nullptr ? parent : mainWindow, Qt::Window),
      myMainWindow(mainWindow),
      myForm(std::make_unique<Ui_QtCustomGenForm>()),
      myNames(DtClassFileWriter::namesSoFar())
{
    prepareForm();
    populateListview(item);
    nameClass();
    connectControls();
    displayInstructions();
}

DtCustomCodeGui::~DtCustomCodeGui()
{
    // The list and the editors outlive what their signals lead to.
    for (QObject* sender : {static_cast<QObject*>(myForm->myItemList), static_cast<QObject*>(myForm->myEncEditor),
                            static_cast<QObject*>(myForm->myDecEditor)})
        sender->disconnect(this);
}

void DtCustomCodeGui::prepareForm()
{
    myForm->setupUi(this);
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowModality(Qt::WindowModal);
    const QFont fixed = CodeEditor::codeFont();
    for (QWidget* widget : {static_cast<QWidget*>(myForm->myEncHeader), static_cast<QWidget*>(myForm->myDecHeader),
                            static_cast<QWidget*>(myForm->myInstructions)})
        widget->setFont(fixed);
    myForm->mySplitter->setSizes({420, 660});
    myForm->mySplitter->setStretchFactor(1, 1);
    myClassLabel = new QLabel(this);
    myClassLabel->setObjectName(QStringLiteral("ClassLabel"));
    myClassLabel->setTextFormat(Qt::PlainText);
    myClassLabel->setWordWrap(true);
    myForm->myListLayout->insertWidget(0, myClassLabel);
    if (myMainWindow != nullptr)
        centerOn(*myMainWindow);
    myForm->myInstructions->setFocus(); // the list would make its first member current
}

void DtCustomCodeGui::connectControls()
{
    const Ui_QtCustomGenForm& form = *myForm;
    connect(form.myItemList, &QTreeWidget::currentItemChanged, this, &DtCustomCodeGui::slot_itemSelectionChanged);
    connect(form.myItemList, &QWidget::customContextMenuRequested, this, &DtCustomCodeGui::slot_showContextMenu);
    connect(form.myEncEditor, &QPlainTextEdit::undoAvailable, this, &DtCustomCodeGui::slot_encTextChanged);
    connect(form.myDecEditor, &QPlainTextEdit::undoAvailable, this, &DtCustomCodeGui::slot_decTextChanged);
    connect(form.mySaveButton, &QPushButton::released, this, &DtCustomCodeGui::slot_saveButtonClicked);
    connect(new QShortcut(QKeySequence(Qt::Key_Escape), this), &QShortcut::activated, this, &QWidget::close);
}

void DtCustomCodeGui::populateListview(QTreeWidgetItem* item)
{
    if (item == nullptr || myMainWindow == nullptr || myMainWindow->tree() == nullptr)
        return;
    findClass(item);
    findAttributesAndParameters(item);
    myForm->myItemList->resizeColumnToContents(0);
}

// On the middle of that window, as far as the screen allows.
void DtCustomCodeGui::centerOn(const QWidget& window)
{
    QRect place = QStyle::alignedRect(Qt::LeftToRight, Qt::AlignCenter, size(), window.frameGeometry());
    if (const QScreen* const screen = window.screen())
    {
        const QRect room = screen->availableGeometry();
        place.moveRight(qMin(place.right(), room.right()));
        place.moveBottom(qMin(place.bottom(), room.bottom()));
        place.moveLeft(qMax(place.left(), room.left()));
        place.moveTop(qMax(place.top(), room.top()));
    }
    move(place.topLeft());
}

void DtCustomCodeGui::nameClass()
{
    QString name = text(myClassFullName);
    if (name.contains('.') && myMembers.empty())
    {
        const DtString superclasses = superclassesWithMembers();
        name += QStringLiteral("\n") + (myIsInteraction ? "This class has no parameters of its own."
                                                        : "This class has no attributes of its own.");
        if (!superclasses.isEmpty())
            name += " Its superclasses have: " + text(superclasses);
    }
    myClassLabel->setText(breakable(name));
}

DtString DtCustomCodeGui::superclassesWithMembers() const
{
    const DtOMTTree& tree = *myMainWindow->tree();
    DtString found;
    DtString name = myClassFullName;
    while (name.stdString().find('.') != std::string::npos)
    {
        name.snipBack('.');
        const auto* const object = myIsInteraction ? nullptr : tree.getObjectClassNode(name);
        const auto* const interaction = myIsInteraction ? tree.getInteractionClassNode(name) : nullptr;
        const bool hasMembers = (object != nullptr && !object->getAttributes().empty()) ||
                                (interaction != nullptr && !interaction->getParameters().empty());
        if (hasMembers)
            found += (found.isEmpty() ? "" : ", ") + name;
    }
    return found;
}

// The names from the root of the model down to the item. The lists call the roots by names of their own.
void DtCustomCodeGui::findClass(const QTreeWidgetItem* item)
{
    DtString path;
    for (; item->parent() != nullptr; item = item->parent())
        path = "." + bytes(item->text(0)) + path;
    myIsInteraction = item->text(0) == theInteractionsText;
    const DtOMTTree& tree = *myMainWindow->tree();
    const DtFedNode* const root =
        myIsInteraction ? static_cast<const DtFedNode*>(tree.interactionClassRoot()) : tree.objectClassRoot();
    if (root != nullptr)
        myClassFullName = root->getFullName() + path;
}

void DtCustomCodeGui::findAttributesAndParameters(QTreeWidgetItem* item)
{
    if (item->parent() == nullptr || myClassFullName.isEmpty())
        return;
    const DtOMTTree& tree = *myMainWindow->tree();
    if (myIsInteraction)
    {
        if (const DtInteractionClassFedNode* const node = tree.getInteractionClassNode(myClassFullName))
            for (const DtParameterFedNode* each : node->getParameters())
                addMember(each);
    }
    else if (const DtObjectClassFedNode* const node = tree.getObjectClassNode(myClassFullName))
        for (const DtAttributeFedNode* each : node->getAttributes())
            addMember(each);
}

// Members of one name share a key and thus their code, so they stand in the list once.
template <typename Node>
void DtCustomCodeGui::addMember(const Node* node)
{
    if (node == nullptr)
        return;
    const DtString key = myClassFullName + "." + node->getName();
    DtString name = key;
    name.snipFrontToLast('.');
    DtMember member;
    member.names = {className(), name, node->getDatatype()};
    if (!myMembers.emplace(key, member).second)
        return;
    auto* const item = new QTreeWidgetItem(myForm->myItemList, {text(key), text(node->getDatatype())});
    for (const int column : {0, 1})
        item->setToolTip(column, item->text(column));
}

// What the generated classes are called after: the rename, or the project's short name.
DtString DtCustomCodeGui::className() const
{
    const DtOmtProject* const project = myMainWindow->omtProject();
    const DtOmtNode* record = nullptr;
    if (project != nullptr && myIsInteraction)
        record = project->getInteractionFromName(myClassFullName);
    else if (project != nullptr)
        record = project->getObjectFromName(myClassFullName);
    if (record != nullptr && !record->rename().isEmpty())
        return record->rename();
    DtString name = record != nullptr ? record->name() : myClassFullName;
    name.snipFrontToLast('.');
    return myNames.MakeCCompatibleString(name);
}

DtCustomCodeGui::DtMember* DtCustomCodeGui::memberOf(const QTreeWidgetItem* item)
{
    const auto found = item != nullptr ? myMembers.find(itemType(item)) : myMembers.end();
    return found == myMembers.end() ? nullptr : &found->second;
}

DtString DtCustomCodeGui::itemType(const QTreeWidgetItem* item) const
{
    DtString key = bytes(item->text(0));
    if (key.startsWith("*"))
        key.snipFront('*');
    return key;
}

DtString DtCustomCodeGui::findDatatype(const DtString& key) const
{
    const auto found = myMembers.find(key);
    return found == myMembers.end() ? DtString() : found->second.names.datatype;
}

bool DtCustomCodeGui::findCustomItemInProject(const DtString& key, DtOmtProject::DtCodingPair& coding) const
{
    const DtOmtProject* const project = myMainWindow != nullptr ? myMainWindow->omtProject() : nullptr;
    return project != nullptr && project->customCodingsFromName(key, coding);
}

bool DtCustomCodeGui::setCustomItemInProject(const DtString& key, const DtOmtProject::DtCodingPair& coding)
{
    DtOmtProject* const project = myMainWindow != nullptr ? myMainWindow->omtProject() : nullptr;
    if (project != nullptr)
        project->addCustomCoding(key, coding);
    return project != nullptr;
}

DtCustomCodeTokens DtCustomCodeGui::tokensOf(const DtCustomCodeMember& member) const
{
    return DtCustomCodeTokens(member, myMainWindow->tree(), myMainWindow->omtProject(),
                              myMainWindow->preferences()->prefixName(), myNames);
}

void DtCustomCodeGui::decodeFileLine(DtString& line) const
{
    const auto found = myCurrentItem != nullptr ? myMembers.find(itemType(myCurrentItem)) : myMembers.end();
    if (found != myMembers.end())
        tokensOf(found->second.names).expand(line);
}

DtString DtCustomCodeGui::readTemplateFile(const char* name) const
{
    std::string content;
    if (!DtReadFile(DtString(theTemplates) + name, content))
    {
        DtWarn << "Cannot read " << theTemplates << name << std::endl;
        return DtString();
    }
    if (!content.empty() && content.back() == '\n')
        content.pop_back();
    DtString expanded;
    for (DtString line : DtSplit(content, '\n', DtEmptyPieces::Keep))
    {
        decodeFileLine(line);
        expanded += line + '\n';
    }
    expanded.snipBack('\n');
    return expanded;
}

void DtCustomCodeGui::slot_itemSelectionChanged(QTreeWidgetItem* current, QTreeWidgetItem* previous)
{
    if (previous != nullptr && previous == myCurrentItem)
        cacheCodings(previous);
    selectItem(current);
}

void DtCustomCodeGui::selectItem(QTreeWidgetItem* item)
{
    myCurrentItem = item;
    DtMember* const member = memberOf(item);
    if (member == nullptr)
        return displayInstructions();
    const DtTemplateRow& row = templates(myIsInteraction);
    myForm->myEncHeader->setText(text(readTemplateFile(row.encHeader)));
    myForm->myDecHeader->setText(text(readTemplateFile(row.decHeader)));
    if (!member->isLoaded)
        loadMember(item);
    showMember(item);
    for (QWidget* control : {static_cast<QWidget*>(myForm->myEncEditor), static_cast<QWidget*>(myForm->myDecEditor),
                             static_cast<QWidget*>(myForm->mySaveButton)})
        control->setEnabled(true);
    turnOnHighlighter();
    item->setSelected(true);
    if (myForm->myTabs->currentWidget() == myForm->myInstructionsTab)
        myForm->myTabs->setCurrentWidget(myForm->myEncodingTab);
}

void DtCustomCodeGui::loadMember(QTreeWidgetItem* item)
{
    DtMember& member = *memberOf(item);
    DtOmtProject::DtCodingPair coding;
    if (!findCustomItemInProject(itemType(item), coding))
        coding = defaultCoding();
    member.encoder.setOriginal(text(coding.first));
    member.decoder.setOriginal(text(coding.second));
    member.isLoaded = true;
}

// What generation writes for the current member by itself.
DtOmtProject::DtCodingPair DtCustomCodeGui::defaultCoding() const
{
    const auto found = myMembers.find(itemType(myCurrentItem));
    if (found == myMembers.end())
        return {};
    const DtTemplateRow& row = templates(myIsInteraction);
    if (tokensOf(found->second.names).isEnumeration())
        return {readTemplateFile(row.enumEncoder), readTemplateFile(row.enumDecoder)};
    return {readTemplateFile(row.encoder), readTemplateFile(row.decoder)};
}

void DtCustomCodeGui::showMember(QTreeWidgetItem* item)
{
    const QScopedValueRollback<bool> loading(myIsLoading, true);
    const DtMember& member = *memberOf(item);
    myForm->myEncEditor->setPlainText(member.encoder.edited);
    myForm->myDecEditor->setPlainText(member.decoder.edited);
}

void DtCustomCodeGui::cacheCodings(const QTreeWidgetItem* item)
{
    DtMember* const member = memberOf(item);
    if (member == nullptr || !member->isLoaded)
        return;
    member->encoder.edited = myForm->myEncEditor->text();
    member->decoder.edited = myForm->myDecEditor->text();
}

void DtCustomCodeGui::insertDefaultCoding()
{
    if (memberOf(myCurrentItem) == nullptr)
        return;
    const DtOmtProject::DtCodingPair coding = defaultCoding();
    replaceText(myForm->myEncEditor, text(coding.first));
    replaceText(myForm->myDecEditor, text(coding.second));
}

void DtCustomCodeGui::slot_encTextChanged(bool undoAvailable)
{
    DtMember* const member = memberOf(myCurrentItem);
    if (myIsLoading || member == nullptr)
        return;
    cacheCodings(myCurrentItem);
    setEncoderEdited(undoAvailable || member->encoder.differs(), myCurrentItem);
}

void DtCustomCodeGui::slot_decTextChanged(bool undoAvailable)
{
    DtMember* const member = memberOf(myCurrentItem);
    if (myIsLoading || member == nullptr)
        return;
    cacheCodings(myCurrentItem);
    setDecoderEdited(undoAvailable || member->decoder.differs(), myCurrentItem);
}

void DtCustomCodeGui::setEncoderEdited(bool isEdited, QTreeWidgetItem* item)
{
    memberOf(item)->encoder.isEdited = isEdited;
    updateItemModificationIndicators(item);
}

void DtCustomCodeGui::setDecoderEdited(bool isEdited, QTreeWidgetItem* item)
{
    memberOf(item)->decoder.isEdited = isEdited;
    updateItemModificationIndicators(item);
}

void DtCustomCodeGui::updateItemModificationIndicators(QTreeWidgetItem* item)
{
    const QString mark = memberOf(item)->isEdited() ? QStringLiteral("*") : QString();
    item->setText(0, mark + text(itemType(item)));
    myForm->myItemList->resizeColumnToContents(0); // has room for the mark
}

bool DtCustomCodeGui::hasUnsavedEdits() const
{
    return std::any_of(myMembers.begin(), myMembers.end(), [](const auto& each) { return each.second.isEdited(); });
}

void DtCustomCodeGui::turnOnHighlighter()
{
    if (myEncHighlighter != nullptr)
        return;
    myEncHighlighter = std::make_unique<Highlighter>(myForm->myEncEditor->document());
    myDecHighlighter = std::make_unique<Highlighter>(myForm->myDecEditor->document());
}

void DtCustomCodeGui::turnOffHighlighter()
{
    myEncHighlighter.reset();
    myDecHighlighter.reset();
}

void DtCustomCodeGui::displayInstructions()
{
    const QScopedValueRollback<bool> loading(myIsLoading, true);
    turnOffHighlighter();
    for (QLabel* header : {myForm->myEncHeader, myForm->myDecHeader})
        header->clear();
    for (CodeEditor* editor : {myForm->myEncEditor, myForm->myDecEditor})
    {
        editor->clear();
        editor->setEnabled(false);
    }
    myForm->mySaveButton->setEnabled(false);
    myForm->myInstructions->setPlainText(text(readTemplateFile(theGuide)));
    myForm->myTabs->setCurrentWidget(myForm->myInstructionsTab);
}

void DtCustomCodeGui::slot_showContextMenu(const QPoint& point)
{
    QTreeWidgetItem* const item = myForm->myItemList->itemAt(point);
    if (item == nullptr)
        return;
    myForm->myItemList->setCurrentItem(item);
    auto* const menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->addAction(QStringLiteral("Encoding"), this, &DtCustomCodeGui::slot_encodingSelected);
    menu->addAction(QStringLiteral("Decoding"), this, &DtCustomCodeGui::slot_decodingSelected);
    menu->addSeparator();
    menu->addAction(QStringLiteral("Original Text"), this, &DtCustomCodeGui::insertDefaultCoding);
    menu->popup(myForm->myItemList->viewport()->mapToGlobal(point));
}

void DtCustomCodeGui::slot_encodingSelected()
{
    myForm->myTabs->setCurrentWidget(myForm->myEncodingTab);
    myForm->myEncEditor->setFocus();
}

void DtCustomCodeGui::slot_decodingSelected()
{
    myForm->myTabs->setCurrentWidget(myForm->myDecodingTab);
    myForm->myDecEditor->setFocus();
}

void DtCustomCodeGui::slot_saveButtonClicked()
{
    if (memberOf(myCurrentItem) == nullptr)
        return;
    storeItem(myCurrentItem);
    myMainWindow->saveOmtProject(); // without a project it says so
}

// Puts both texts into the project. From then on they are what the editors start from.
bool DtCustomCodeGui::storeItem(QTreeWidgetItem* item)
{
    if (item == myCurrentItem)
        cacheCodings(item);
    DtMember& member = *memberOf(item);
    const QString encoder = member.encoder.toSave();
    const QString decoder = member.decoder.toSave();
    if (!setCustomItemInProject(itemType(item), {bytes(encoder), bytes(decoder)}))
        return false;
    member.encoder.setOriginal(encoder);
    member.decoder.setOriginal(decoder);
    updateItemModificationIndicators(item);
    if (item == myCurrentItem)
        for (CodeEditor* editor : {myForm->myEncEditor, myForm->myDecEditor})
            editor->document()->clearUndoRedoStacks(); // so that the next edit is told of again
    return true;
}

void DtCustomCodeGui::saveAllEdited()
{
    for (int row = 0; row < myForm->myItemList->topLevelItemCount(); ++row)
    {
        QTreeWidgetItem* const item = myForm->myItemList->topLevelItem(row);
        if (memberOf(item)->isEdited())
            storeItem(item);
    }
    myMainWindow->saveOmtProject();
}

void DtCustomCodeGui::closeEvent(QCloseEvent* event)
{
    if (!hasUnsavedEdits())
        return event->accept();
    QMessageBox question(QMessageBox::Warning, windowTitle(), QStringLiteral("The document has been modified."),
                         QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, this);
    question.setInformativeText(QStringLiteral("Do you want to save your changes?"));
    question.setDefaultButton(QMessageBox::Save);
    const int answer = question.exec();
    if (answer == QMessageBox::Save)
        saveAllEdited();
    // Without a project there is nowhere to save to; then the edits stay.
    event->setAccepted(answer == QMessageBox::Discard || !hasUnsavedEdits());
}
