Opened template.dxf
; drawing: samples/template.dxf
; before: printf 'x\tT\r\nN\tX\tY\tZ\tEX\tEY\tEZ\tR\tNUMERO\r\n1\t1\t1\t0\t1\t1\t1\t0\tA\r\n2\t\t1\t0\t1\t1\t1\t0\tB\r\n3\t3\t1\t0\tbig\t1\t1\t0\tC\r\n\r\n5\t5\t1\t0\t0\t1\t1\t0\tE\r\n6\t6\t1\t0\t2\t2\t2\t1.5\tF\tsurplus\r\n7\t7\n7\t1\t0\t1\t1\t1\t0\tG\r\n' > data.txt
; options: --regional en --keep-going
; exit: 1
; run: print_references.py result.dxf ETIQUETTE_PIECE
; run: check_drawing.py original-template.dxf result.dxf
; Rows with a text that is no number are reported; a scale of 0, which the drawing refuses, is dropped in silence; the
; leader lines of both stay. Numbers are the rows' places in the list. A lone line feed is part of its line.
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
      0 <<< Select
      1 ARBRE
      2 Browse >>>
      3 ETIQUETTE_PIECE
      4 NORD
      5 POTEAU
      6 SURVEY_POINT
> Combo1 # 3
> BtnData
[fmReInsert] hidden
+-- Sélectionnez le fichier des données d'insertion
|  Fichier texte séparateur tabulation (*.txt)
+-- [file PATH] [cancel]
> file data.txt
[fmReInsert] Vorlane 1.0 : Block re-insertion (again)
> show
  Frame1: Attributs de 'ETIQUETTE_PIECE'
    ListView1: 13 rows
        # | Paramètre | Colonne-valeurs
      > 1 | X_ | X
        2 | Y_ | Y
        3 | Z_ | Z
        4 | Ech.X | EX
        5 | Ech.Y | EY
        6 | Ech.Z | EZ
        7 | Rotation(rd) | R
        8 | DeltaX | 0
        9 | DeltaY | 0
        10 | DeltaZ | 0
        11 | NUMERO | NUMERO
        12 | NOM | Colonne 9
        13 | SURFACE | Colonne 10
    LblVal: Value
    ComboBox1: ""
        0 N
        1 X
        2 Y
        3 Z
        4 EX
        5 EY
        6 EZ
        7 R
        8 NUMERO
  Frame2: Données d'insert° du bloc 'T' : 'FOLDER/data.txt'
    ListView2: 7 rows
        # | N | X | Y | Z | EX | EY | EZ | R | NUMERO
      > 1 | 1 | 1 | 1 | 0 | 1 | 1 | 1 | 0 | A
        2 | 2 | | 1 | 0 | 1 | 1 | 1 | 0 | B
        3 | 3 | 3 | 1 | 0 | big | 1 | 1 | 0 | C
        4 |  | | | | | | | |
        5 | 5 | 5 | 1 | 0 | 0 | 1 | 1 | 0 | E
        6 | 6 | 6 | 1 | 0 | 2 | 2 | 2 | 1.5 | F
        7 | 7 | 7\n7 | 1 | 0 | 1 | 1 | 1 | 0 | G
  Check1: [ ] Add a leader line (disabled)
  BtnData: [Insertion data]
  BtnInsert: [Insert]
  BtnClose: [Close]
  Label1: Block name
  Combo1: "ETIQUETTE_PIECE"
      0 <<< Select
      1 ARBRE
      2 Browse >>>
    > 3 ETIQUETTE_PIECE
      4 NORD
      5 POTEAU
      6 SURVEY_POINT
> ListView1 # 8
> ComboBox1 = 0.5
> Check1
> BtnInsert
+-- Quillet 1.0 (!)
|  End of the insertion.
|  Error : The line 2 was not insered!
|  Error : The line 3 was not insered!
|  Error : The line 4 was not insered!
|  Error : The line 7 was not insered!
|  
+-- [ok]
> ok
> BtnClose
[fmReInsert] hidden
Command: LIST
References  Block
         2  ETIQUETTE_PIECE
         0  POTEAU
         0  NORD
         0  ARBRE
         0  SURVEY_POINT
Command: SAVE result.dxf
Saved result.dxf
vorlane-console: line 18: ok: End of the insertion. Error : The line 2 was not insered! Error : The line 3 was not insered! Error : The line 4 was not insered! Error : The line 7 was not insered!
-- run print_references.py result.dxf ETIQUETTE_PIECE
Model: at 1.5,1,0 scale 1,1,1 rotation 0 layer 0 NUMERO='A' NOM='Colonne 9' SURFACE='Colonne 10'
Model: at 6.5,1,0 scale 2,2,2 rotation 85.9437 layer 0 NUMERO='F' NOM='Colonne 9' SURFACE='Colonne 10'
-- run check_drawing.py original-template.dxf result.dxf
removed: none
added: 6 ATTRIB, 2 INSERT, 4 LINE, 2 SEQEND
