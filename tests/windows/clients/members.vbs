' Every method of the list, SpEv and Error by name, and what scripts do: arguments left out, arguments
' rewritten, Set, values that survive.
Option Explicit
Dim good, bad : good = 0 : bad = 0
Sub Check(what, got, want)
    If CStr(got) = CStr(want) Then
        good = good + 1
    Else
        bad = bad + 1
        WScript.Echo "FAIL " & what & ": got [" & got & "] want [" & want & "]"
    End If
End Sub

Dim helper : Set helper = CreateObject("NvListTest.Helper")
Dim files : Set files = CreateObject("Scripting.FileSystemObject")
Dim folder : folder = files.GetParentFolderName(WScript.ScriptFullName) & "\"
Dim c : Set c = helper.Make("Norvane.nvList")
Check "defaults", c.BackColor & c.Enabled & c.ScrollBars & c.IndentTop, "16777215True23"

' ---- ItemsAdd: each argument alone ----
Dim plain : plain = "t||False|def|def|False|0|def|def|True||-2147483631|-2147483626|False|False|False|"
Function Colour(value)
    If value = "def" Then Colour = value Else Colour = CStr(value)
End Function
Function Fields(i)
    Dim silent : Set silent = helper.Make("Norvane.Error")
    silent.SilentError = True
    Dim picture : picture = ""
    If Not c.ItemIcon(i) Is Nothing Then picture = "icon"
    If Not c.ItemIconSelected(i) Is Nothing Then picture = picture & "selected"
    Dim fore : fore = "def" : If c.ItemForeColor(i) <> 0 Then fore = c.ItemForeColor(i)
    Dim back : back = "def" : If c.ItemBackColor(i) <> 0 Then back = c.ItemBackColor(i)
    silent.SilentError = False
    Fields = c.ItemText(i) & "|" & picture & "|" & c.ItemChecked(i) & "|" & fore & "|" & back & "|" & _
        c.ItemAllowEdit(i) & "|" & c.ItemAlignment(i) & "|" & Colour(c.ItemForeColorSelect(i)) & "|" & _
        Colour(c.ItemBackColorSelect(i)) & "|" & c.ItemEnabled(i) & "|" & c.ItemTag(i) & "|" & _
        c.ItemForeColorDis(i) & "|" & c.ItemBackColorDis(i) & "|" & c.ItemBold(i) & "|" & _
        c.ItemItalic(i) & "|" & c.ItemUnderline(i) & "|" & c.ItemKey(i)
End Function
Sub CheckAdded(what, field, value)
    Dim want : want = Split(plain, "|")
    want(field) = value
    Dim part, joined
    For Each part In want : joined = joined & "|" & part : Next
    Check "ItemsAdd " & what, Fields(c.NewIndex), Mid(joined, 2)
End Sub
Dim bmp : Set bmp = helper.Picture(folder & "icon.bmp")
c.ItemsAdd "t" : CheckAdded "aText", 0, "t"
c.ItemsAdd "t", , bmp : CheckAdded "aIcon", 1, "icon"
c.ItemsAdd "t", , , bmp : CheckAdded "aIconSelected", 1, "selected"
c.ItemsAdd "t", , , , True : CheckAdded "aChecked", 2, True
c.ItemsAdd "t", , , , , 3 : CheckAdded "aForeColor", 3, 3
c.ItemsAdd "t", , , , , , 4 : CheckAdded "aBackColor", 4, 4
c.ItemsAdd "t", , , , , , , True : CheckAdded "aAllowEdit", 5, True
c.ItemsAdd "t", , , , , , , , 2 : CheckAdded "aAlignment", 6, 2
c.ItemsAdd "t", , , , , , , , , 5 : CheckAdded "aForeColorSelected", 7, 5
c.ItemsAdd "t", , , , , , , , , , 6 : CheckAdded "aBackColorSelected", 8, 6
c.ItemsAdd "t", , , , , , , , , , , False : CheckAdded "aEnabled", 9, False
c.ItemsAdd "t", , , , , , , , , , , , "tag" : CheckAdded "aTag", 10, "tag"
c.ItemsAdd "t", , , , , , , , , , , , , 7 : CheckAdded "aForeColorDis", 11, 7
c.ItemsAdd "t", , , , , , , , , , , , , , 8 : CheckAdded "aBackColorDis", 12, 8
c.ItemsAdd "t", , , , , , , , , , , , , , , True : CheckAdded "aBold", 13, True
c.ItemsAdd "t", , , , , , , , , , , , , , , , True : CheckAdded "aItalic", 14, True
c.ItemsAdd "t", , , , , , , , , , , , , , , , , True : CheckAdded "aUnderline", 15, True
c.ItemsAdd "t", , , , , , , , , , , , , , , , , , "key" : CheckAdded "aKey", 16, "key"
c.ItemsAdd "first", 0 : Check "ItemsAdd aIndex", c.NewIndex & c.ItemText(0), "0first"
Check "ItemsCount", c.ItemsCount, 19
Check "IndexByKey", c.IndexByKey("key"), 18
Check "ItemsCheckCount", c.ItemsCheckCount, 1
c.MultiSelect = True
c.ItemSelected(3) = True : c.ItemSelected(4) = True
Check "ItemsSelectCount", c.ItemsSelectCount & c.ItemSelected(4) & c.ItemSelected(5), "2TrueFalse"
c.ItemsSelectedRemove : Check "ItemsSelectedRemove", c.ItemsCount, 17
c.ItemsRemoveDouble : Check "ItemsRemoveDouble", c.ItemsCount & c.ItemText(0), "1first"
c.ItemsAdd "FIRST" : c.ItemsRemoveDouble False : Check "ItemsRemoveDouble, case counts", c.ItemsCount, 2
c.ItemsRemoveDouble : Check "ItemsRemoveDouble, by default it does not", c.ItemsCount, 1
c.ItemsClear : Check "ItemsClear", c.ItemsCount, 0

' ---- order, search, position ----
Sub Fill(texts)
    Dim t
    c.ItemsClear
    For Each t In Split(texts) : c.ItemsAdd t : Next
End Sub
Function Texts
    Dim n, t
    For n = 0 To c.ItemsCount - 1 : t = t & c.ItemText(n) & " " : Next
    Texts = Trim(t)
End Function
Fill "beta Alpha gamma"
c.Sort 2 : Check "Sort down", Texts, "gamma beta Alpha"
Dim mode : mode = 1
c.Sort mode : Check "Sort up", Texts & mode, "Alpha beta gamma1"
c.MoveItemUp 2, 1 : Check "MoveItemUp", Texts, "Alpha gamma beta"
c.MoveItemDown 0, "2" : Check "MoveItemDown", Texts, "gamma beta Alpha"
Check "IsInList", c.IsInList("a*") & c.IsInList("a*", 1) & c.IsInList("beta"), "-121"
c.ListIndex = 1 : Check "ListIndex", c.ListIndex & c.Text, "1beta"
c.Text = "Alpha" : Check "Text", c.ListIndex & c.Text, "2Alpha"
Dim i : i = "1"
c.ItemsRemove i : Check "ItemsRemove rewrites its argument", TypeName(i) & i & Texts, "Long1gamma Alpha"
c.ItemsRemove 0 : Check "ItemsRemove of a constant", Texts, "Alpha"
i = 0.4 : Check "an index is rounded and stays as it is", c.ItemText(i) & i, "Alpha0.4"
Check "VisibleItems", c.VisibleItems > 3 And c.VisibleItems < 20, True
c.AutoRedraw = False
For i = 0 To 99 : c.ItemsAdd "row " & i : Next
c.AutoRedraw = True : c.CheckScroll
c.TopIndex = 5 : Check "TopIndex", c.TopIndex, 5
c.TopIndex = 200 : Check "TopIndex is bounded", c.TopIndex < 101, True
c.Redraw : Check "hwnd", TypeName(c.hwnd) & (c.hwnd <> 0), "LongTrue"
c.AllowEdit = True : c.ItemAllowEdit(0) = True
i = "0" : c.SetEdit i : Check "SetEdit leaves its argument alone", TypeName(i) & i, "String0"

' ---- fonts, pictures, objects ----
Check "Font", TypeName(c.Font) & c.Font.Bold, "FontFalse"
Dim before : before = c.VisibleItems
c.Font.Size = 30 : Check "a change of the font counts", c.VisibleItems < before, True
Dim other : Set other = CreateObject("StdFont") : other.Italic = True : other.Size = 9
Set c.Font = other : other.Size = 40
Check "Set Font takes a clone", c.Font.Name & c.Font.Italic & (c.Font.Size < 10), other.Name & "TrueTrue"
c.Font = other : Check "let Font", c.Font.Size > 30, True
Set c.ItemIcon(0) = bmp : Check "Set ItemIcon", c.ItemIcon(0) Is bmp, True
c.ItemIconSelected(0) = bmp : Check "let ItemIconSelected", c.ItemIconSelected(0).Width, bmp.Width
c.ItemIcon(0) = Nothing : Check "let ItemIcon Nothing", c.ItemIcon(0) Is Nothing, True
Set c.ItemIconSelected(0) = Nothing : Check "Set ItemIconSelected", c.ItemIconSelected(0) Is Nothing, True
Dim value
For Each value In Array(Empty, Null, CByte(7), 300, 70000, 1.5, CSng(2.5), CDate(46347.25), CCur("12.3456"), True, "text", 1E+300)
    c.ItemTag(0) = value
    Check "a tag stays a " & TypeName(value), TypeName(c.ItemTag(0)) & "" & c.ItemTag(0), TypeName(value) & "" & value
    c.ItemsAdd "tagged", , , , , , , , , , , , value
    Check "aTag stays a " & TypeName(value), TypeName(c.ItemTag(c.NewIndex)), TypeName(value)
Next
Set c.ItemTag(0) = files : Check "a tag can be an object", c.ItemTag(0) Is files, True
c.ItemTag(0) = Array(1, 2) : Check "a tag can be an array", UBound(c.ItemTag(0)), 1
c.ItemsAdd 3.14159265358979 : Check "a double as text", c.ItemText(c.NewIndex), CStr(3.14159265358979)
c.ItemsAdd CDate(46347) : Check "a date as text", c.ItemText(c.NewIndex), CStr(CDate(46347))
c.ItemForeColorSelect(0) = CDbl(65280) : Check "a double as colour", c.ItemForeColorSelect(0), 65280
c.ItemKey(0) = 5.5 : Check "a double as key", c.IndexByKey(5.5) & TypeName(c.ItemKey(0)), "0String"

' ---- files ----
Dim path : path = folder & "list.nvl"
Fill "one two"
c.ItemTag(0) = CDate(46347) : c.ItemKey(1) = "k2" : c.ItemBold(1) = True
Set c.ItemIcon(1) = bmp : Set c.ItemIconSelected(1) = bmp
c.ListSave path, True
c.ItemsClear : c.ListInput path, True
Check "ListSave, ListInput", Texts & c.ItemKey(1) & c.ItemBold(1), "one twok2True"
Check "a picture of a list file", c.ItemIcon(1).Width & (c.ItemIcon(0) Is Nothing), bmp.Width & "True"
Check "a date comes back as its text", c.ItemTag(0), CStr(CDate(46347))
Fill "one two" : c.ItemBold(1) = True
c.ListSave path, True : c.ListInput path
Check "properties of the file, not read", Texts & c.ItemBold(1), "one twoFalse"
c.ListSave path : c.ListInput path, True
Check "without properties", Texts & c.ItemKey(1) & c.ItemBold(1), "one twoFalse"
Check "ListFileItemsCount", c.ListFileItemsCount(folder & "none") & " " & c.ListFileItemsCount(path), "-1 0"
Dim text : Set text = files.CreateTextFile(folder & "text.txt") : text.Write "a;b;c" : text.Close
c.ItemsClear
Check "ListInput2", c.ListInput2(folder & "text.txt", ";") & Texts, "0a b c"

' ---- rows by name ----
Class Rows
    Private at
    Public Default Property Get Field(n) : Field = "row" & at & "/" & n : End Property
    Public Property Get RecordCount : RecordCount = 3 : End Property
    Public Property Get EOF : EOF = at >= 3 : End Property
    Public Sub MoveFirst : at = 0 : End Sub
    Public Sub MoveNext : at = at + 1 : End Sub
End Class
Dim r : Set r = New Rows
Set c.Recordset = r
Check "Recordset", Texts, "row0/0 row1/0 row2/0"
Check "Recordset is kept", c.Recordset Is r, True
Check "SetEdit without a window", Left(helper.Report, 2), "5 "
c.Recordset = files
Check "an object without rows", Left(helper.Report, 70), "438 Object doesn't support this property or method in nvList.Recordset"

' ---- failures stay inside ----
Dim silent : Set silent = helper.Make("Norvane.Error")
Check "SilentError", silent.SilentError, False
Check "a bad index", c.ItemText(99) & helper.Report, "9 Subscript out of range in nvList.ItemText of cscript; "
Check "a text that is no index", c.ItemText("abc") & helper.Report, "13 Type mismatch in nvList.ItemText of cscript; "
silent.SilentError = True
Check "silent", c.ItemText(99) & helper.Report & helper.Make("Norvane.Error").SilentError, "True"
silent.SilentError = False
Dim kind, shown
For Each kind In Array("fails", "is missing")
    helper.Handle kind : helper.AnswerBox
    Check "a report while the handler " & kind, c.ItemText(99), ""
    shown = Replace(helper.Box, vbCrLf, "/")
    Check "a box while the handler " & kind, Left(shown, InStr(shown, "Version") - 1), _
        "Error||OK|Error no.: 9/Error description: Subscript out of range/Project: cscript/" & _
        "Module: Benutzersteuerelement nvList/Line/Procedure: 10/ItemText/"
Next
helper.Handle "takes"
helper.AnswerBox : c.About : Check "About", helper.Box, "NorvaneAbout|nvList|Version 1.0.0||OK"
On Error Resume Next
c.NoSuchMember
Check "an unknown member", Err.Number, 438
Err.Clear : c.ItemsAdd
Check "a missing argument", Err.Number <> 0, True
Err.Clear : c.ListIndex = "abc"
Check "a value that cannot be converted", Err.Number, 13
On Error GoTo 0

' ---- SpEv ----
Dim s : Set s = helper.Make("Norvane.SpEv")
s.TextSave folder & "text.txt", "hello" : Check "TextSave, TextRead", s.TextRead(folder & "text.txt"), "hello" & vbCrLf
Check "FileExists", s.FileExists(folder & "text.txt") & s.FileExists(folder & "none*"), "TrueFalse"
Check "ActiveXPTheme", s.ActiveXPTheme >= 1 And s.ActiveXPTheme <= 4, True
Check "MouseButtonPressed", s.MouseButtonPressed, 0
s.PlayMusic folder & "none.wav"
Class Box
    Private all
    Public Property Get ListCount : ListCount = UBound(Split(all, ";")) + 1 : End Property
    Public Property Get List(n)
        Dim parts : parts = Split(all, ";")
        List = parts(n)
    End Property
    Public Sub AddItem(row)
        If all <> "" Then all = all & ";"
        all = all & row
    End Sub
End Class
Dim b : Set b = New Box : b.AddItem "x" : b.AddItem "y"
s.ListSave b, folder & "text.txt", "<", ">" : Check "ListSave of SpEv", s.TextRead(folder & "text.txt"), "<x>" & vbCrLf & "<y>" & vbCrLf
s.ListSave b, folder & "text.txt" : Set b = New Box
s.ListRead b, folder & "text.txt" : Check "ListRead", b.ListCount & b.List(1), "2y"
s.ListRead 5, folder & "text.txt" : Check "a list box that is none", Left(helper.Report, 3), "424"

' ---- completeness, speed, end ----
Check "reports at the end", helper.Report, ""
Dim called : Set called = New RegExp
Dim source : source = files.OpenTextFile(WScript.ScriptFullName).ReadAll
Dim m, unseen
For Each m In Split(helper.Members(c) & helper.Members(s), ";")
    called.Pattern = "\b[cs]\." & m & "\b"
    If Not called.Test(source) Then unseen = unseen & m & ";"
Next
Check "never called", unseen, ""

Dim d, t
c.ItemsClear : c.AutoRedraw = False
t = Timer : For i = 1 To 20000 : c.ItemsAdd "item " & i : Next : t = Timer - t
Set d = CreateObject("Scripting.Dictionary")
Dim u : u = Timer : For i = 1 To 20000 : d.Add "item " & i, i : Next : u = Timer - u
WScript.Echo "20,000 ItemsAdd: " & t & " s, as many Dictionary.Add: " & u & " s"
Set d = Nothing : Set c = Nothing : Set s = Nothing : Set silent = Nothing : Set r = Nothing
Check "the library can be unloaded", helper.CanUnload, True
WScript.Echo "passed: " & good & ", failures: " & bad
