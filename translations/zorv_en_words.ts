<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>Zorv::ParentProject</name>
    <message>
        <source>Oops, you can run only one instance of yhe engine at the same time.</source>
        <translation>The engine is running already. End it before you start it again.</translation>
    </message>
    <message>
        <source>Oops, you need to add an engine first. Do it in Tools / Options.</source>
        <translation>There is no engine yet. Add one in Tools &gt; Options.</translation>
    </message>
    <message>
        <source>Oops, wrong parameters on the engine configuration. Check it in Tools / Options.</source>
        <translation>The parameters of the engine name no project. Write %0 for the one in front, in Tools &gt; Options.</translation>
    </message>
</context>
<context>
    <name>Zorv::SoundEditor</name>
    <message>
        <source>Do you really want to delete the sprite?</source>
        <translation>Do you really want to delete the sound?</translation>
    </message>
</context>
</TS>
