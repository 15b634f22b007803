-- prepare remove_references.py architecture.dxf stripped.dxf SOFA PUERTA ARBRE10
removed 17 references
Opened architecture.dxf
; drawing: corpus/architecture.dxf
; prepare: remove_references.py architecture.dxf stripped.dxf SOFA PUERTA ARBRE10
; run: compare_references.py original-architecture.dxf result.dxf SOFA PUERTA ARBRE10
; run: check_drawing.py stripped.dxf result.dxf
; Rotations and scales of many digits.
Command: VNEXTRACT
[fmExtract] Vorlane 1.0 : Block data extraction
  Label0: Block name:
  Label1:
  Frame2: Extracted data
    ListView2: 0 rows
        #
  BtnNew: [New]
  BtnSave: [Save]
  BtnErase: [Clear]
  BtnClose: [Close]
> BtnNew
[fmExtract] hidden
Select the bloc reference label to list :@C87
[fmVnMessage] Vorlane 1.0 : Message
  Label1: You have selected the bloc reference 'SOFA'
  BtnSelect: [Start again]
  OKButton: [Reference zone]
  CancelButton: [Cancel]
> OKButton
[fmVnMessage] hidden
Select objects: all
711 found, 711 total
Select objects: 
[fmExtract] Vorlane 1.0 : Block data extraction (again)
> show
  Label0: Block name:
  Label1: SOFA
  Frame2: Extracted data
    ListView2: 10 rows
        # | N° | X insertion | Y insertion | Z insertion | Ech. X | Ech. Y | Ech. Z | Rotation | Calque | Couleur
      > 1 | 1 | 17.6550914282747 | 13.470760244825 | 0 | 1 | 1 | 1 | 6.28318530717957 | texture | 256
        2 | 2 | 18.5812275335379 | 13.470760244825 | 0 | 1 | 1 | 1 | 6.28318530717957 | texture | 256
        3 | 3 | 14.7291763291402 | 13.9997905903908 | 0 | 1 | 1 | 1 | 1.57079632679489 | texture | 256
        4 | 4 | 14.7291763291402 | 14.9259266956541 | 0 | 1 | 1 | 1 | 1.57079632679489 | texture | 256
        5 | 5 | 14.7291763291402 | 15.8658065776099 | 0 | 1 | 1 | 1 | 1.57079632679489 | texture | 256
        6 | 6 | 16.4444703150332 | 8.60986379187943 | 0 | -1 | 1 | 1 | 3.1415926535898 | texture | 256
        7 | 7 | 17.3706064202964 | 8.60986379187943 | 0 | -1 | 1 | 1 | 3.1415926535898 | texture | 256
        8 | 8 | 18.3177256905329 | 8.60986379187943 | 0 | -1 | 1 | 1 | 3.1415926535898 | texture | 256
        9 | 9 | 19.2438617957961 | 8.60986379187943 | 0 | -1 | 1 | 1 | 3.1415926535898 | texture | 256
        10 | 10 | 20.180489483546 | 8.60986379187943 | 0 | -1 | 1 | 1 | 3.1415926535898 | texture | 256
  BtnNew: [New]
  BtnSave: [Save]
  BtnErase: [Clear]
  BtnClose: [Close]
> BtnSave
[fmExtract] hidden
+-- Save as
|  Fichier texte séparateur tabulation (*.txt)
+-- [file PATH] [cancel]
> file data1.txt
[fmExtract] Vorlane 1.0 : Block data extraction (again)
> BtnNew
[fmExtract] hidden
Select the bloc reference label to list :@CAF
[fmVnMessage] Vorlane 1.0 : Message (again)
> OKButton
[fmVnMessage] hidden
Select objects: all
711 found, 711 total
Select objects: 
[fmExtract] Vorlane 1.0 : Block data extraction (again)
> BtnSave
[fmExtract] hidden
+-- Save as
|  Fichier texte séparateur tabulation (*.txt)
+-- [file PATH] [cancel]
> file data2.txt
[fmExtract] Vorlane 1.0 : Block data extraction (again)
> BtnNew
[fmExtract] hidden
Select the bloc reference label to list :@B99
[fmVnMessage] Vorlane 1.0 : Message (again)
> OKButton
[fmVnMessage] hidden
Select objects: all
711 found, 711 total
Select objects: 
[fmExtract] Vorlane 1.0 : Block data extraction (again)
> BtnSave
[fmExtract] hidden
+-- Save as
|  Fichier texte séparateur tabulation (*.txt)
+-- [file PATH] [cancel]
> file data3.txt
[fmExtract] Vorlane 1.0 : Block data extraction (again)
> BtnClose
[fmExtract] hidden
Command: OPEN stripped.dxf
Opened stripped.dxf
Command: VNINSERT
[fmReInsert] Vorlane 1.0 : Block re-insertion
  Frame1: Attributes of ''
    ListView1: 10 rows
        # | Paramètre | Colonne-valeurs
      > 1 | X_ |
        2 | Y_ |
        3 | Z_ |
        4 | Ech.X |
        5 | Ech.Y |
        6 | Ech.Z |
        7 | Rotation(rd) |
        8 | DeltaX |
        ... and 2 more
    LblVal: Value
    ComboBox1: ""
  Frame2: Insertion data: ''
    ListView2: 0 rows
        #
  Check1: [ ] Add a leader line (disabled)
  BtnData: [Insertion data]
  BtnInsert: [Insert] (disabled)
  BtnClose: [Close]
  Label1: Block name
  Combo1: ""
      0 *D11
      1 *D12
      2 *D13
      3 *D14
      4 *D15
      5 *D16
      6 <<< Select
      7 _ArchTick
      ... and 10 more
> Combo1 # 16
> BtnData
[fmReInsert] hidden
+-- Sélectionnez le fichier des données d'insertion
|  Fichier texte séparateur tabulation (*.txt)
+-- [file PATH] [cancel]
> file data1.txt
[fmReInsert] Vorlane 1.0 : Block re-insertion (again)
> show
  Frame1: Attributs de 'SOFA'
    ListView1: 10 rows
        # | Paramètre | Colonne-valeurs
      > 1 | X_ | X insertion
        2 | Y_ | Y insertion
        3 | Z_ | Z insertion
        4 | Ech.X | Ech. X
        5 | Ech.Y | Ech. Y
        6 | Ech.Z | Ech. Z
        7 | Rotation(rd) | Rotation
        8 | DeltaX | 0
        9 | DeltaY | 0
        10 | DeltaZ | 0
    LblVal: Value
    ComboBox1: ""
        0 N°
        1 X insertion
        2 Y insertion
        3 Z insertion
        4 Ech. X
        5 Ech. Y
        6 Ech. Z
        7 Rotation
        8 Calque
        9 Couleur
  Frame2: Données d'insert° du bloc 'SOFA' : 'data1.txt'
    ListView2: 10 rows
        # | N° | X insertion | Y insertion | Z insertion | Ech. X | Ech. Y | Ech. Z | Rotation | Calque | Couleur
      > 1 | 1 | 17.6550914282747 | 13.470760244825 | 0 | 1 | 1 | 1 | 6.28318530717957 | texture | 256
        2 | 2 | 18.5812275335379 | 13.470760244825 | 0 | 1 | 1 | 1 | 6.28318530717957 | texture | 256
        3 | 3 | 14.7291763291402 | 13.9997905903908 | 0 | 1 | 1 | 1 | 1.57079632679489 | texture | 256
        4 | 4 | 14.7291763291402 | 14.9259266956541 | 0 | 1 | 1 | 1 | 1.57079632679489 | texture | 256
        5 | 5 | 14.7291763291402 | 15.8658065776099 | 0 | 1 | 1 | 1 | 1.57079632679489 | texture | 256
        6 | 6 | 16.4444703150332 | 8.60986379187943 | 0 | -1 | 1 | 1 | 3.1415926535898 | texture | 256
        7 | 7 | 17.3706064202964 | 8.60986379187943 | 0 | -1 | 1 | 1 | 3.1415926535898 | texture | 256
        8 | 8 | 18.3177256905329 | 8.60986379187943 | 0 | -1 | 1 | 1 | 3.1415926535898 | texture | 256
        9 | 9 | 19.2438617957961 | 8.60986379187943 | 0 | -1 | 1 | 1 | 3.1415926535898 | texture | 256
        10 | 10 | 20.180489483546 | 8.60986379187943 | 0 | -1 | 1 | 1 | 3.1415926535898 | texture | 256
  Check1: [ ] Add a leader line (disabled)
  BtnData: [Insertion data]
  BtnInsert: [Insert]
  BtnClose: [Close]
  Label1: Block name
  Combo1: "SOFA"
      0 *D11
      1 *D12
      2 *D13
      3 *D14
      4 *D15
      5 *D16
      6 <<< Select
      7 _ArchTick
      8 ARBOL
      9 ARBRE10
      10 ARBRE11
      11 ARBUST10
      12 arrow
      13 Browse >>>
      14 MESACENTRO
      15 PUERTA
    > 16 SOFA
      17 start
> BtnInsert
+-- Quillet 1.0 (i)
|  End of the insertion.
|  
+-- [ok]
> ok
> BtnClose
[fmReInsert] hidden
Command: VNINSERT
[fmReInsert] Vorlane 1.0 : Block re-insertion
  Frame1: Attributes of ''
    ListView1: 10 rows
        # | Paramètre | Colonne-valeurs
      > 1 | X_ |
        2 | Y_ |
        3 | Z_ |
        4 | Ech.X |
        5 | Ech.Y |
        6 | Ech.Z |
        7 | Rotation(rd) |
        8 | DeltaX |
        ... and 2 more
    LblVal: Value
    ComboBox1: ""
  Frame2: Insertion data: ''
    ListView2: 0 rows
        #
  Check1: [ ] Add a leader line (disabled)
  BtnData: [Insertion data]
  BtnInsert: [Insert] (disabled)
  BtnClose: [Close]
  Label1: Block name
  Combo1: ""
      0 *D11
      1 *D12
      2 *D13
      3 *D14
      4 *D15
      5 *D16
      6 <<< Select
      7 _ArchTick
      ... and 10 more
> Combo1 # 15
> BtnData
[fmReInsert] hidden
+-- Sélectionnez le fichier des données d'insertion
|  Fichier texte séparateur tabulation (*.txt)
+-- [file PATH] [cancel]
> file data2.txt
[fmReInsert] Vorlane 1.0 : Block re-insertion (again)
> BtnInsert
+-- Quillet 1.0 (i)
|  End of the insertion.
|  
+-- [ok]
> ok
> BtnClose
[fmReInsert] hidden
Command: VNINSERT
[fmReInsert] Vorlane 1.0 : Block re-insertion
  Frame1: Attributes of ''
    ListView1: 10 rows
        # | Paramètre | Colonne-valeurs
      > 1 | X_ |
        2 | Y_ |
        3 | Z_ |
        4 | Ech.X |
        5 | Ech.Y |
        6 | Ech.Z |
        7 | Rotation(rd) |
        8 | DeltaX |
        ... and 2 more
    LblVal: Value
    ComboBox1: ""
  Frame2: Insertion data: ''
    ListView2: 0 rows
        #
  Check1: [ ] Add a leader line (disabled)
  BtnData: [Insertion data]
  BtnInsert: [Insert] (disabled)
  BtnClose: [Close]
  Label1: Block name
  Combo1: ""
      0 *D11
      1 *D12
      2 *D13
      3 *D14
      4 *D15
      5 *D16
      6 <<< Select
      7 _ArchTick
      ... and 10 more
> Combo1 # 9
> BtnData
[fmReInsert] hidden
+-- Sélectionnez le fichier des données d'insertion
|  Fichier texte séparateur tabulation (*.txt)
+-- [file PATH] [cancel]
> file data3.txt
[fmReInsert] Vorlane 1.0 : Block re-insertion (again)
> BtnInsert
+-- Quillet 1.0 (i)
|  End of the insertion.
|  
+-- [ok]
> ok
> BtnClose
[fmReInsert] hidden
Command: SAVE result.dxf
Saved result.dxf
-- run compare_references.py original-architecture.dxf result.dxf SOFA PUERTA ARBRE10
SOFA: 10 before, 10 after, 10 equal
PUERTA: 3 before, 3 after, 3 equal
ARBRE10: 4 before, 4 after, 4 equal
-- run check_drawing.py stripped.dxf result.dxf
removed: none
added: 17 INSERT
