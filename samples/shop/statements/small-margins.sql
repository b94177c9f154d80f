select ProductName, ListPrice
from Products
where Discontinued = 0 and ListPrice * 0.6 < PurchasePrice
