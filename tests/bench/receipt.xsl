<?xml version="1.0" encoding="UTF-8"?>
<!-- The receipt of the benchmark on 40-column paper, as a user would write it for xsltproc. -->
<xsl:stylesheet version="1.0" xmlns:xsl="http://www.w3.org/1999/XSL/Transform">
<xsl:output method="text" encoding="UTF-8"/>
<xsl:variable name="blanks" select="'                                        '"/>
<xsl:variable name="dots" select="'........................................'"/>

<xsl:template match="/job">
  <xsl:text>&#10;j&#10;</xsl:text>
  <xsl:apply-templates select="receipt"/>
  <xsl:if test="receipe">
    <xsl:text>"Num Description            Price  Amount"@&#10;</xsl:text>
  </xsl:if>
  <xsl:apply-templates select="receipe"/>
  <xsl:apply-templates select="total"/>
  <xsl:text>J&#10;</xsl:text>
</xsl:template>

<xsl:template match="receipt">
  <xsl:value-of select="concat('&quot; Serial Number: ', @serialnumber, '&quot;@&#10;')"/>
  <xsl:text>"========================================"@&#10;</xsl:text>
</xsl:template>

<xsl:template match="receipe">
  <xsl:value-of select="concat('&quot;',
      substring($blanks, 1, 3 - string-length(@number)), @number, ' x ',
      substring(concat(@name, $dots), 1, 18),
      substring($dots, 1, 8 - string-length(@price)), @price,
      substring($blanks, 1, 8 - string-length(@totalPrice)), @totalPrice,
      '&quot;@&#10;')"/>
</xsl:template>

<xsl:template match="total">
  <xsl:text>""@&#10;</xsl:text>
  <xsl:value-of select="concat('&quot;    TOTAL', substring($dots, 1, 23),
      substring($blanks, 1, 8 - string-length(@price)), @price, '&quot;@&#10;')"/>
</xsl:template>
</xsl:stylesheet>
