Opened template.dxf
; drawing: samples/template.dxf
; copy: samples/survey_points.txt
; options: --regional en
; run: compare_with_data.py survey_points.txt result.dxf SURVEY_POINT 1.5 2 0
; run: check_drawing.py original-template.dxf result.dxf
; A surveyor's points into a drawing without anything, each with a leader line. A mapping that is no column counts as
; a constant; the leader line can be had as soon as a delta isn't 0.
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
> Combo1 # 6
> show
  Frame1: Attributs de 'SURVEY_POINT'
    ListView1: 13 rows
        # | Paramètre | Colonne-valeurs
      > 1 | X_ | Colonne 1
        2 | Y_ | Colonne 2
        3 | Z_ | Colonne 3
        4 | Ech.X | Colonne 4
        5 | Ech.Y | Colonne 5
        6 | Ech.Z | Colonne 6
        7 | Rotation(rd) | Colonne 7
        8 | DeltaX | 0
        9 | DeltaY | 0
        10 | DeltaZ | 0
        11 | MATRICULE | Colonne 8
        12 | ALTITUDE | Colonne 9
        13 | NATURE | Colonne 10
    LblVal: Value
    ComboBox1: ""
        0 Colonne 1
        1 Colonne 2
        2 Colonne 3
        3 Colonne 4
        4 Colonne 5
        5 Colonne 6
        6 Colonne 7
        7 Colonne 8
        8 Colonne 9
        9 Colonne 10
        10 Colonne 11
        11 Colonne 12
        12 Colonne 13
  Frame2: Insertion data: ''
    ListView2: 0 rows
        # | N° | Colonne 1 | Colonne 2 | Colonne 3 | Colonne 4 | Colonne 5 | Colonne 6 | Colonne 7 | Colonne 8 | Colonne 9 | Colonne 10 | Colonne 11 | Colonne 12 | Colonne 13
  Check1: [ ] Add a leader line (disabled)
  BtnData: [Insertion data]
  BtnInsert: [Insert] (disabled)
  BtnClose: [Close]
  Label1: Block name
  Combo1: "SURVEY_POINT"
      0 <<< Select
      1 ARBRE
      2 Browse >>>
      3 ETIQUETTE_PIECE
      4 NORD
      5 POTEAU
    > 6 SURVEY_POINT
> BtnData
[fmReInsert] hidden
+-- Sélectionnez le fichier des données d'insertion
|  Fichier texte séparateur tabulation (*.txt)
+-- [file PATH] [cancel]
> file survey_points.txt
[fmReInsert] Vorlane 1.0 : Block re-insertion (again)
> ListView1 = DeltaX
> ComboBox1 = 1.5
> ListView1 = DeltaY
> ComboBox1 = 2
> Check1
> BtnInsert
+-- Quillet 1.0 (i)
|  End of the insertion.
|  
+-- [ok]
> ok
> BtnClose
[fmReInsert] hidden
Command: LIST
References  Block
         0  ETIQUETTE_PIECE
         0  POTEAU
         0  NORD
         0  ARBRE
       360  SURVEY_POINT
Command: SAVE result.dxf
Saved result.dxf
-- run compare_with_data.py survey_points.txt result.dxf SURVEY_POINT 1.5 2 0
360 rows, 360 references, 360 lines, 0 wrong
-- run check_drawing.py original-template.dxf result.dxf
removed: none
added: 1080 ATTRIB, 360 INSERT, 360 LINE, 360 SEQEND
