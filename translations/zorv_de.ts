<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>App::Actions</name>
    <message>
        <source>&amp;Open game folder...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save a&amp;ll</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Close text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close &amp;project</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close &amp;game folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select &amp;all</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Go to line...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Encoding...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Duplicate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move &amp;up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move do&amp;wn</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Sort automatically</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Next panel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Previous panel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Next te&amp;xt</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Previous t&amp;ext</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Keys</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;About Zorv</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>App::AnimationPanel</name>
    <message>
        <source>Animations of the text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add animation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Duplicate animation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove animations</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sort animations</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move animation</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>App::AnimationRows</name>
    <message>
        <source>Move animations</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>App::CodeEdit</name>
    <message>
        <source>Text of %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>App::DocumentTabs</name>
    <message>
        <source>Open texts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>new file</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>App::EncodingChoice</name>
    <message>
        <source>%1 has unsaved changes. They are lost if it is read again in %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 can be read again in %2, or keep its text and be saved in it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Read the file again in %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep the text, and save it in %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Encoding</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Encoding of the file:</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>App::GameSession</name>
    <message>
        <source>There is no folder %1. Choose another one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is not a folder. Choose the folder of a game.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The folder %1 cannot be read. Check its permissions.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no project in %1. A game has a file such as &apos;characters/ryn/ryn.character&apos; or &apos;stages/dojo/dojo.stage&apos;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No game is open.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>App::GameTree</name>
    <message>
        <source>Projects and files of the game</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>App::LineBar</name>
    <message>
        <source>&amp;Go to line:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Line to go to</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>App::MainWindow</name>
    <message>
        <source>Projects</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nodes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Animations</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Messages</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open a game folder with Ctrl+O.
A double click in the tree of projects shows a text.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open game folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open project</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 cannot be shown: no project names it as a code file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no file %1. Correct the path in the main file of the project, or put the file there.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is saved.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All files are saved.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keys</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>About Zorv</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zorv %1

An editor for people who make characters and stages for two-dimensional fighting games. The text is the only truth; trees and lists follow.

Under the MIT licence. Made with Qt %2.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>App::Menus</name>
    <message>
        <source>&amp;File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Animation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>App::MessagePanel</name>
    <message>
        <source>Messages of the project</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No problems</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 errors</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 warning</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 warnings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>App::NodePanel</name>
    <message>
        <source>Nodes of the text</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>App::Screenshot</name>
    <message>
        <source>There is no picture without the game.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The picture %1 cannot be written. Check the folder and its permissions.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>App::StatusFields</name>
    <message>
        <source>Not saved yet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Missing on disk</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Modified</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saved</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Problems of the project. Click for the list.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Encoding of the file. Click to change it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Line and column. Click to go to a line.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>State of the file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Line ends of the file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Line ends: converted when saved</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Encoding: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Line %1, column %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>App::UnsavedWork</name>
    <message>
        <source>and %1 more</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save the text of %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 belongs to several projects, and was changed in them in different ways. The changes of one can be saved; the others are lost.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This file has unsaved changes:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>These files have unsaved changes:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save all</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Discard the changes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unsaved changes</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>App::WindowActions</name>
    <message>
        <source>&amp;Recent game folders</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Clear the list</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Family</name>
    <message>
        <source>There is no file or folder &apos;%1&apos;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no character or stage in &apos;%1&apos;. Expected files such as &apos;characters/hero/hero.character&apos;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is not a file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>character</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>stage</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>animation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>command</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the end of the line</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Did you mean &apos;%1&apos;?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Here is none to choose from.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Expected one of: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> from %1 to %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The path &apos;%1&apos; cannot be read from its character %2 on. Expected names with &apos;.&apos; or &apos;/&apos; between, such as &apos;constants.life&apos; or &apos;animation:200/frame:0/delay&apos;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Expected &apos;yes&apos; or &apos;no&apos;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Expected one value; found &apos;%1&apos;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Expected %1 and nothing else; found &apos;%2&apos;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Expected %1; found &apos;%2&apos;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Expected a text without control characters.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The line of the frame cannot be read. Correct it first.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Expected a number or a word; found &apos;%1&apos;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The animation has no number or name. Give it one first.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&apos;%1&apos; is a %2, not a value. Name a part of it, as in &apos;%1%3&apos;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The engine has no name.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose the program of the engine &apos;%1&apos;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no program &apos;%1&apos;. Correct its path.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The parameters of the engine &apos;%1&apos; ask for no project. Write %2 in the place of the project in front.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&apos;%1&apos; has no parts.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no &apos;%1&apos; in the file. %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no &apos;%1&apos; in &apos;%2&apos;. %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no &apos;%1&apos; in &apos;%2&apos;: it has %3 frame(s), counted from 0.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no &apos;%1&apos; in &apos;%2&apos;: it has %3 of them, counted from 0.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Family::AnimationEdits</name>
    <message>
        <source>There is no animation in the file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no animation &apos;%1&apos;. Expected a place from #0 to #%2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no animation &apos;%1&apos;. %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There are several animations &apos;%1&apos;. Name one by its place, &apos;#%2&apos; or &apos;#%3&apos;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot name an animation. Write a number, or a word of letters, digits, &apos;_&apos; and &apos;-&apos;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is an animation &apos;%1&apos; already. Choose another name.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove animations</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Family::DocumentFile</name>
    <message>
        <source>Expected the name of a file; found an empty text.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot open %1: It is a folder. Name a file in it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot open %1: It is not a plain file. Name a file on a disk.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot open %1: It is larger than %2 MB. Divide it into several files.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&apos;%1&apos; (%2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Encoding</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 does not come back byte for byte from its encoding, %2: saving it would change characters.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open it in %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 It does from %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, line %2: The encoding %3 has no %4. Change the character, or save the file in UTF-8.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saving %1 ends each of its lines with a carriage return and a line feed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save it in UTF-8</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Do not save</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Family::FamilyAnimations</name>
    <message>
        <source>Duplicate animation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove animation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move animation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sort animations</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Family::FamilyEngineModel</name>
    <message>
        <source>Zorv reference family</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Family::FamilyProject</name>
    <message>
        <source>new file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New stage</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New character</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New project</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Family::HostInterface</name>
    <message>
        <source>All known files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Find</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ItemsDlg</name>
    <message>
        <source>Items</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select all</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clear</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invert selection</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RunDlg</name>
    <message>
        <source>Run in Engine</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose the target:</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Zorv::Animations</name>
    <message>
        <source>Auto organize animations</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Zorv::CodeDocument</name>
    <message>
        <source>It is too large for a text. Choose a file of less than %1 MB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot open %1.%2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot read %1: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot write %1.%2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Zorv::FileEditor</name>
    <message>
        <source>External file!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Discard changes?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Do you want to discard the changes made in %1?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No file reference!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Without a real file reference, some functions may not work properly until you save it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open %1...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This file isn&apos;t a child of the project directory, so will be ignored on &apos;Run in engine&apos;, &apos;Backup&apos; and &apos;Save as&apos; functions. Do you want to load it as copy?
Note: As copy, if you save it the previous file will be overwritten!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save %1 as...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This file isn&apos;t a child of the project directory, so will be ignored on &apos;Run in engine&apos;, &apos;Backup&apos; and &apos;Save as&apos; functions. Do you want to save it as copy?
Note: As copy, we keep the reference to the previous file!</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Zorv::FileSystemArchive</name>
    <message>
        <source>Cannot open %1: %2. Check that the file is there and may be read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file does not exist</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It is not a plain file</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Zorv::FileWatcherManager</name>
    <message>
        <source>File modified</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; has been modified. Do you want to reload all other instances of this file now?</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Zorv::Files</name>
    <message>
        <source>Cannot read %1: %2. Check that the file is there and may be read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It does not open</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Zorv::ParentProject</name>
    <message>
        <source>Backup in progress...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Auto</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Zorv::SafeFile</name>
    <message>
        <source>The old file is unchanged.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save under another name.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It is a folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It is not a plain file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file is write-protected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Allow writing to it, or save under another name.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file exists</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file does not exist</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check that the folder is there and may be written to, or save in another place.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The old file is unchanged. Free some space or choose another place, then save again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot write %1: %2. %3</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Zorv::TextCodecs</name>
    <message>
        <source>System</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Zorv::ZorvTranslator</name>
    <message>
        <source>No document.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Code toolbar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Centralize origin</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Main cross</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Secondary cross</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Extra cross</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rulers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Guide lines</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attack Box</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Collision Box</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Code snippets</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Insert code snippet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New code snippet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit code snippet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Go to line...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Previous syntax error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Next syntax error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Previous deprecation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Next deprecation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Comment/Uncomment selection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fold all code blocks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unfold all coded blocks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save as...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Palettes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clear</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clear all unused</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove all duplicates</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remap</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Undo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Redo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Exchange position of selected colors</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sets the color of the selected slots</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Apply to the sprites</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Previous palette</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Next palette</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open palette</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save current palette</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Animations</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit animation code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save as animated GIF...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Play</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move 1px to the left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move 1px up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move 1px to the right</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move 1px down</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add frame</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete frame</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add Attack box</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add Collision box</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete selected Contact boxes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete all Contact boxes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete all Contact boxes of current animation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Switch Contact box type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy Contact boxes of previous frame</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use these Contact boxes in all other instances of this frame</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Optimize</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import from another project...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Apply time to all next frames</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Apply flip to all next frames</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Apply offset to all next frames</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Apply scale to all next frames</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Alignment Tool</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Frames:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>X axis:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Y axis:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Flip:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>None</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vertically</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Horizontally</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Both</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>X scale:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Y scale:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Angle:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Time:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Previous animation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Next animation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Previous frame</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Next frame</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OnionSkin</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sprites</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Previous sprite</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Next sprite</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move canvas</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move selection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rectangle selection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Free selection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Color picker</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Eraser</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remap pen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paint bucket</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Normal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Multiply</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Screen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Overlay</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Darken</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lighten</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Color Dodge</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Color Burn</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hard Light</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Soft Light</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Difference</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Exclusion</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Layers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Merge visible</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Merge all</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change image...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save image changes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save image...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Crop image</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Switch to the frame&apos;s sprite</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Original</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Image</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Properties</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Resize</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rotation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Flip horizontally</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Flip vertically</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Split channels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Deselect</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invert</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Switch to the sprite palette</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sounds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change sound...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save sound as...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Resample</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Play with loop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Previous sound</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Next sound</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Organizer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move one position up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move one position down</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move ten positions up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move ten positions down</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move to the top</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move to the bottom</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Organize automatically</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Thumbnails</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add selected to the current animation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add all to the current animation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New animation with selected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New animation with all</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save selected images</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show/Hide the code toolbar in all code editors</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Place the origin at the center of the workspace</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show/Hide the main cross</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show/Hide the secondary cross</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show/Hide the extra cross</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show/Hide the Rulers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show/Hide the Guide lines</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show/Hide the Attack contact boxes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show/Hide the Collision contact boxes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Insert the current code snippet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Create a new code snippet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit the current code snippet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Go to the specifed line</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Go to the previous syntax error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Go to the next syntax error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Go to the previous deprecation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Go to the next deprecation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Comment/Uncomment all selected lines</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove all palettes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove all unused palettes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add one or more palettes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove the current palette</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove all duplicate palettes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Define new colors to the palette from a file...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save the palette as a file...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open the palette Remap tool</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Apply the current palette to the specified sprites</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open palette from a file...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save current palette to a new file...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit animation code in code editor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add a new animation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove the current animation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Duplicate the current animation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit the code of current animation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save the current animation as an animated GIF...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Play the current animation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop the animation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move the sprite 1px to the left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move the sprite 1px up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move the sprite 1px to the right</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move the sprite 1px down</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add a new frame in the animation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove the current frame</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enable/disable the drawing mode for Attack contact box</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enable/disable the drawing mode for Collision contact box</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove all selected Contact boxes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove all Contact boxes of current frame</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove all Contact boxs of current animation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Switch type of all selected Contact boxes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy all Contact boxes of previous frame</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Optimize animation code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import one or more animations from another opened project...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enable OnionSkin</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add one or more sprites</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add a new layer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove the current layer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Duplicate the current layer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Merge all visible layers into one</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Merge all layers into one</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove the current sprite</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change the image of the sprite from a file...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save changes on current sprite</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save one or more sprites as image files...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove free borders from the current sprite</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Duplicate the current sprite</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import one or more sprites from another opened project...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Switch to the sprite of the current frame</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Split the viewport with the Original size at left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Canvas properties (format and size)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Resize all layers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rotate all layers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Flip all layers horizontally</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Flip all layers vertically</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Split the RGB channels of the current sprite as separate sprites</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select the entire canvas</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>lear any selection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invert the current selection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Switch the current palette to the palette of the sprite</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add one or more sounds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove the current sound</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change the current sound from a file...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save the sound as WAV...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Resample one or more sounds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Duplicate the current sound</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Play the current sound</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Play the current sound with infinite loop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop the sound</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import one or more sounds from another opened project...</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
