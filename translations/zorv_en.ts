<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_GB" sourcelanguage="en">
<context>
    <name>AnimAlign</name>
    <message numerus="yes">
        <source>%n number(s) would leave the range of the text, and stay as they were.</source>
        <translation>
            <numerusform>%n number would leave the range of the text, and stays as it was.</numerusform>
            <numerusform>%n numbers would leave the range of the text, and stay as they were.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>App::AddImages</name>
    <message numerus="yes">
        <source>%n sprite(s) came in.</source>
        <translation>
            <numerusform>%n sprite came in.</numerusform>
            <numerusform>%n sprites came in.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>App::AxisDialog</name>
    <message numerus="yes">
        <source>%n sprite(s)</source>
        <translation>
            <numerusform>%n sprite</numerusform>
            <numerusform>%n sprites</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The axis of %n sprite(s) is set.</source>
        <translation>
            <numerusform>The axis of %n sprite is set.</numerusform>
            <numerusform>The axes of %n sprites are set.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>App::FindInFiles</name>
    <message numerus="yes">
        <source>%n place(s)</source>
        <translation>
            <numerusform>%n place</numerusform>
            <numerusform>%n places</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %n file(s)</source>
        <translation>
            <numerusform>in %n file</numerusform>
            <numerusform>in %n files</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Replace %n place(s)</source>
        <translation>
            <numerusform>Replace %n place</numerusform>
            <numerusform>Replace %n places</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %n file(s)?</source>
        <translation>
            <numerusform>in %n file?</numerusform>
            <numerusform>in %n files?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) of these are not open. They are written at once, and no undo takes that back.</source>
        <translation>
            <numerusform>%n file of these is not open. It is written at once, and no undo takes that back.</numerusform>
            <numerusform>%n files of these are not open. They are written at once, and no undo takes that back.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>and %n more</numerusform>
            <numerusform>and %n more</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n place(s) replaced</source>
        <translation>
            <numerusform>%n place replaced</numerusform>
            <numerusform>%n places replaced</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %n file(s). These stay as they are:</source>
        <translation>
            <numerusform>in %n file. These stay as they are:</numerusform>
            <numerusform>in %n files. These stay as they are:</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>App::FindSearch</name>
    <message numerus="yes">
        <source>more than %n match(es)</source>
        <translation>
            <numerusform>more than %n match</numerusform>
            <numerusform>more than %n matches</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n match(es)</source>
        <translation>
            <numerusform>%n match</numerusform>
            <numerusform>%n matches</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>App::GameCommands</name>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>and %n more</numerusform>
            <numerusform>and %n more</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>App::HueDialog</name>
    <message numerus="yes">
        <source>%n selected slot(s)</source>
        <translation>
            <numerusform>%n selected slot</numerusform>
            <numerusform>%n selected slots</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>App::ImagesDialog</name>
    <message numerus="yes">
        <source>%n image(s)</source>
        <translation>
            <numerusform>%n image</numerusform>
            <numerusform>%n images</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n of them get(s) the next free number.</source>
        <translation>
            <numerusform>%n of them gets the next free number.</numerusform>
            <numerusform>%n of them get the next free number.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n of them cannot come so: see the red ones.</source>
        <translation>
            <numerusform>%n of them cannot come so: see the red one.</numerusform>
            <numerusform>%n of them cannot come so: see the red ones.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>App::PaletteTools</name>
    <message numerus="yes">
        <source>%n slot(s) have the new colour.</source>
        <translation>
            <numerusform>%n slot has the new colour.</numerusform>
            <numerusform>%n slots have the new colour.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>App::PaletteUsage</name>
    <message numerus="yes">
        <source>%n sprite(s), pixels: %1</source>
        <translation>
            <numerusform>%n sprite, pixels: %1</numerusform>
            <numerusform>%n sprites, pixels: %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n slot(s) are used.</source>
        <translation>
            <numerusform>%n slot is used.</numerusform>
            <numerusform>%n slots are used.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n selected slot(s), pixels: %1</source>
        <translation>
            <numerusform>%n selected slot, pixels: %1</numerusform>
            <numerusform>%n selected slots, pixels: %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n sprite(s) have palette %1.</source>
        <translation>
            <numerusform>%n sprite has palette %1.</numerusform>
            <numerusform>%n sprites have palette %1.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>App::ProblemWatch</name>
    <message numerus="yes">
        <source>What is to be removed is used in %n place(s):</source>
        <translation>
            <numerusform>What is to be removed is used in %n place:</numerusform>
            <numerusform>What is to be removed is used in %n places:</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>App::RenameDialog</name>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>and %n more</numerusform>
            <numerusform>and %n more</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>App::RestoreDialog</name>
    <message numerus="yes">
        <source>%1 of %n file(s) differ from those on the disk:</source>
        <translation>
            <numerusform>%1 of %n file differs from the one on the disk:</numerusform>
            <numerusform>%1 of %n files differ from those on the disk:</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>and %n more</numerusform>
            <numerusform>and %n more</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>App::RunCommands</name>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>and %n more</numerusform>
            <numerusform>and %n more</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>App::SoundPanel</name>
    <message numerus="yes">
        <source>%n sound(s)</source>
        <translation>
            <numerusform>%n sound</numerusform>
            <numerusform>%n sounds</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>App::SpritePanel</name>
    <message numerus="yes">
        <source>%n sprite(s)</source>
        <translation>
            <numerusform>%n sprite</numerusform>
            <numerusform>%n sprites</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>App::UnsavedWork</name>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>and %n more</numerusform>
            <numerusform>and %n more</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Family</name>
    <message numerus="yes">
        <source>%n more record(s) are broken.</source>
        <translation>
            <numerusform>%n more record is broken.</numerusform>
            <numerusform>%n more records are broken.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <translation>
            <numerusform>%1 and %n more</numerusform>
            <numerusform>%1 and %n more</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>There is no &apos;%1&apos; in &apos;%2&apos;: it has %n frame(s), counted from 0.</source>
        <translation>
            <numerusform>There is no &apos;%1&apos; in &apos;%2&apos;: it has %n frame, counted from 0.</numerusform>
            <numerusform>There is no &apos;%1&apos; in &apos;%2&apos;: it has %n frames, counted from 0.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n error(s)</source>
        <translation>
            <numerusform>%n error</numerusform>
            <numerusform>%n errors</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n warning(s)</source>
        <translation>
            <numerusform>%n warning</numerusform>
            <numerusform>%n warnings</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Family::FamilyProject</name>
    <message numerus="yes">
        <source>%1: and %n more.</source>
        <translation>
            <numerusform>%1: and %n more.</numerusform>
            <numerusform>%1: and %n more.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Family::Sheet</name>
    <message numerus="yes">
        <source>%n frame(s) lie outside of the picture and are left out, first of all &apos;%1&apos;. Is it the picture of this file?</source>
        <translation>
            <numerusform>%n frame lies outside of the picture and is left out, &apos;%1&apos;. Is it the picture of this file?</numerusform>
            <numerusform>%n frames lie outside of the picture and are left out, first of all &apos;%1&apos;. Is it the picture of this file?</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Family::SheetCutter</name>
    <message numerus="yes">
        <source>%n empty cell(s) at the end are left out.</source>
        <translation>
            <numerusform>%n empty cell at the end is left out.</numerusform>
            <numerusform>%n empty cells at the end are left out.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Family::SheetReader</name>
    <message numerus="yes">
        <source>%n more of these.</source>
        <translation>
            <numerusform>%n more of these.</numerusform>
            <numerusform>%n more of these.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ImportDlg</name>
    <message numerus="yes">
        <source>%n name(s) are taken or repeated.</source>
        <translation>
            <numerusform>%n name is taken or repeated.</numerusform>
            <numerusform>%n names are taken or repeated.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Operations::AssetImport</name>
    <message numerus="yes">
        <source>%n of the sprites in &apos;%1&apos; are broken, the first one is %2. Nothing is imported. Put them in anew there, or import the animations without their sprites.</source>
        <translation>
            <numerusform>%n of the sprites in &apos;%1&apos; is broken: %2. Nothing is imported. Put it in anew there, or import the animations without their sprites.</numerusform>
            <numerusform>%n of the sprites in &apos;%1&apos; are broken, the first one is %2. Nothing is imported. Put them in anew there, or import the animations without their sprites.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Operations::FrameEdits</name>
    <message numerus="yes">
        <source>%n offset(s) would be out of the range from %1 to %2.</source>
        <translation>
            <numerusform>%n offset would be out of the range from %1 to %2.</numerusform>
            <numerusform>%n offsets would be out of the range from %1 to %2.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n contact box(es) would be out of the range from %1 to %2.</source>
        <translation>
            <numerusform>%n contact box would be out of the range from %1 to %2.</numerusform>
            <numerusform>%n contact boxes would be out of the range from %1 to %2.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Operations::Rename</name>
    <message numerus="yes">
        <source>%n more places name it.</source>
        <translation>
            <numerusform>%n more place names it.</numerusform>
            <numerusform>%n more places name it.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Operations::SoundWork</name>
    <message numerus="yes">
        <source>Cannot read &apos;%1&apos;: the sizes in it do not fit, and lead to none of its %n frame(s).</source>
        <translation>
            <numerusform>Cannot read &apos;%1&apos;: the sizes in it do not fit, and do not lead to its %n frame.</numerusform>
            <numerusform>Cannot read &apos;%1&apos;: the sizes in it do not fit, and lead to none of its %n frames.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Of the %n frame(s) in &apos;%1&apos; %2 are read: the sizes in it do not fit.</source>
        <translation>
            <numerusform>Of the %n frame in &apos;%1&apos; %2 are read: the sizes in it do not fit.</numerusform>
            <numerusform>Of the %n frames in &apos;%1&apos; %2 are read: the sizes in it do not fit.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>&apos;%1&apos; is cut short: of %n frame(s) it has %2.</source>
        <translation>
            <numerusform>&apos;%1&apos; is cut short: of %n frame it has %2.</numerusform>
            <numerusform>&apos;%1&apos; is cut short: of %n frames it has %2.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Operations::Uses</name>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>and %n more</numerusform>
            <numerusform>and %n more</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PalDlg</name>
    <message numerus="yes">
        <source>%n sprite(s) will show the colors of the image.</source>
        <translation>
            <numerusform>%n sprite will show the colors of the image.</numerusform>
            <numerusform>%n sprites will show the colors of the image.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Player::Hud</name>
    <message numerus="yes">
        <source>%n hits</source>
        <translation>
            <numerusform>%n hit</numerusform>
            <numerusform>%n hits</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n damage</source>
        <translation>
            <numerusform>%n damage</numerusform>
            <numerusform>%n damage</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>and %n more</numerusform>
            <numerusform>and %n more</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Zorv::AnimationEditor</name>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>and %n more</numerusform>
            <numerusform>and %n more</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>And %n more sprite(s).</source>
        <translation>
            <numerusform>And %n more sprite.</numerusform>
            <numerusform>And %n more sprites.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n animation(s) were imported!</source>
        <translation>
            <numerusform>%n animation was imported!</numerusform>
            <numerusform>%n animations were imported!</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n sprite(s) were added.</source>
        <translation>
            <numerusform>%n sprite was added.</numerusform>
            <numerusform>%n sprites were added.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n sprite(s) were there already.</source>
        <translation>
            <numerusform>%n sprite was there already.</numerusform>
            <numerusform>%n sprites were there already.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n palette(s) were added.</source>
        <translation>
            <numerusform>%n palette was added.</numerusform>
            <numerusform>%n palettes were added.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Zorv::ImportReport</name>
    <message numerus="yes">
        <source>%n of them took the place of another one.</source>
        <translation>
            <numerusform>%n of them took the place of another one.</numerusform>
            <numerusform>%n of them took the place of others.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n were skipped: their names are there already.</source>
        <translation>
            <numerusform>%n was skipped: its name is there already.</numerusform>
            <numerusform>%n were skipped: their names are there already.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n could not be imported.</source>
        <translation>
            <numerusform>%n could not be imported.</numerusform>
            <numerusform>%n could not be imported.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Zorv::PaletteEditor</name>
    <message numerus="yes">
        <source>%n sprite(s) use these palettes, and are shown in shades of gray without them. Do you want to remove all palettes?</source>
        <translation>
            <numerusform>%n sprite uses one of these palettes, and is shown in shades of gray without it. Do you want to remove all palettes?</numerusform>
            <numerusform>%n sprites use these palettes, and are shown in shades of gray without them. Do you want to remove all palettes?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n sprite(s) use a palette that repeats another one, and take that one. Do you want to remove all duplicates?</source>
        <translation>
            <numerusform>%n sprite uses a palette that repeats another one, and takes that one. Do you want to remove all duplicates?</numerusform>
            <numerusform>%n sprites use a palette that repeats another one, and take that one. Do you want to remove all duplicates?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) of these names are in the folder already. Replace them?</source>
        <translation>
            <numerusform>%n file of one of these names is in the folder already. Replace it?</numerusform>
            <numerusform>%n files of these names are in the folder already. Replace them?</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Zorv::SoundEditor</name>
    <message numerus="yes">
        <source>%n file(s) of these names are there already. Replace them?</source>
        <translation>
            <numerusform>%n file of this name is there already. Replace it?</numerusform>
            <numerusform>%n files of these names are there already. Replace them?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n sound(s) were imported!</source>
        <translation>
            <numerusform>%n sound was imported!</numerusform>
            <numerusform>%n sounds were imported!</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n sound(s) were replaced!</source>
        <translation>
            <numerusform>%n sound was replaced!</numerusform>
            <numerusform>%n sounds were replaced!</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n sound(s) stay as they were:</source>
        <translation>
            <numerusform>%n sound stays as it was:</numerusform>
            <numerusform>%n sounds stay as they were:</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Zorv::SpriteEditor</name>
    <message numerus="yes">
        <source>Do you want to crop %n image(s)?</source>
        <translation>
            <numerusform>Do you want to crop %n image?</numerusform>
            <numerusform>Do you want to crop %n images?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n sprite(s) were imported!</source>
        <translation>
            <numerusform>%n sprite was imported!</numerusform>
            <numerusform>%n sprites were imported!</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n palette(s) were added.</source>
        <translation>
            <numerusform>%n palette was added.</numerusform>
            <numerusform>%n palettes were added.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Zorv::SpriteSave</name>
    <message numerus="yes">
        <source>%n file(s) of these names are in the folder already. Replace them?</source>
        <translation>
            <numerusform>%n file of these names is in the folder already. Replace it?</numerusform>
            <numerusform>%n files of these names are in the folder already. Replace them?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) written.</source>
        <translation>
            <numerusform>%n file written.</numerusform>
            <numerusform>%n files written.</numerusform>
        </translation>
    </message>
</context>
</TS>
