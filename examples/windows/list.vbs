' The list in a script, without a window: cscript list.vbs
Option Explicit
Dim list : Set list = CreateObject("Norvane.nvList")

' Arguments may be left out: aText, aIndex, aIcon, aIconSelected, aChecked, aForeColor.
list.ItemsAdd "Rome"
list.ItemsAdd "Oslo", , , , True, RGB(0, 0, 192)
list.ItemsAdd "Paris", 0
list.ItemBold(0) = True
list.Font.Size = 10

list.Sort 1
list.Text = "Paris"

Dim i, names
For i = 0 To list.ItemsCount - 1
    If i > 0 Then names = names & ", "
    names = names & list.ItemText(i)
Next
WScript.Echo names & ": " & list.Text & " is the current one"
